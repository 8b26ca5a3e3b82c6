// A button registry of the test's own in place of the device's.
#include "tests/support/ScriptedButtons.h"

#include <gtest/gtest.h>

#include <cstring>

static const std::wstring shellKeys = L"Software\\Microsoft\\Shell\\Keys";

ScriptedButtons::ScriptedButtons()
{
    openKey.instead = [this](HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* opened) {
        const std::wstring wanted = path;
        if (root != HKEY_LOCAL_MACHINE) {
            return openKey.Real(root, path, options, access, opened);
        }
        if (wanted != shellKeys && !wanted.starts_with(shellKeys + L"\\")) {
            machineOpens++;
            return static_cast<LSTATUS>(ERROR_FILE_NOT_FOUND);
        }
        const std::wstring button = wanted == shellKeys ? L"" : wanted.substr(shellKeys.size() + 1);
        if (refused.contains(button)) {
            return static_cast<LSTATUS>(ERROR_ACCESS_DENIED);
        }
        const std::wstring place = button.empty() ? key.Path() : key.Below(button.c_str());
        const LSTATUS result = openKey.Real(HKEY_CURRENT_USER, place.c_str(), options, access, opened);
        if (result == ERROR_SUCCESS) {
            open[*opened] = button;
            openKeys++;
        }
        return result;
    };
    closeKey.instead = [this](HKEY closed) {
        openKeys -= static_cast<int>(open.erase(closed));
        return closeKey.Real(closed);
    };
    setValue.instead = [this](HKEY target, const wchar_t* name, DWORD reserved, DWORD type, const BYTE* data,
                              DWORD size) {
        if (open.contains(target)) {
            writes.push_back(open[target] + L" " + name);
        }
        return setValue.Real(target, name, reserved, type, data, size);
    };
}

void ScriptedButtons::Add(const std::wstring& button) const
{
    key.MakeSubKey(button.c_str());
}

void ScriptedButtons::Write(const std::wstring& button, const wchar_t* value, DWORD type, const void* data,
                            size_t size) const
{
    Add(button);
    EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.Below(button.c_str()).c_str(), value, type, data,
                              static_cast<DWORD>(size)),
              ERROR_SUCCESS);
}

void ScriptedButtons::WriteText(const std::wstring& button, const wchar_t* value,
                                const std::wstring& text) const
{
    Write(button, value, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

void ScriptedButtons::WriteNumber(const std::wstring& button, const wchar_t* value, DWORD number) const
{
    Write(button, value, REG_DWORD, &number, sizeof number);
}

ScriptedButtons::Values ScriptedButtons::Read(const std::wstring& button) const
{
    Values values;
    HKEY opened = nullptr;
    const std::wstring path = key.Below(button.c_str());
    EXPECT_EQ(openKey.Real(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &opened), ERROR_SUCCESS);
    for (DWORD i = 0;; i++) {
        wchar_t name[256];
        DWORD nameSize = 256;
        std::vector<unsigned char> data(100000);
        auto size = static_cast<DWORD>(data.size());
        DWORD type = 0;
        if (RegEnumValueW(opened, i, name, &nameSize, nullptr, &type, data.data(), &size) != ERROR_SUCCESS) {
            break;
        }
        data.resize(size);
        values[name] = {type, data};
    }
    closeKey.Real(opened);
    return values;
}

std::wstring ScriptedButtons::Text(const std::wstring& button, const wchar_t* value) const
{
    const Values values = Read(button);
    const auto found = values.find(value);
    if (found == values.end() || found->second.first != REG_SZ) {
        return L"";
    }
    std::wstring text(found->second.second.size() / sizeof(wchar_t), L'\0');
    memcpy(text.data(), found->second.second.data(), text.size() * sizeof(wchar_t));
    return text.c_str();
}

long long ScriptedButtons::Number(const std::wstring& button, const wchar_t* value) const
{
    const Values values = Read(button);
    const auto found = values.find(value);
    if (found == values.end() || found->second.first != REG_DWORD || found->second.second.size() != 4) {
        return -1;
    }
    DWORD number = 0;
    memcpy(&number, found->second.second.data(), sizeof number);
    return number;
}
