// The program's settings as a key of the test's own.
#include "tests/support/ScriptedSettings.h"

#include "framework/PathText.h"

#include <gtest/gtest.h>

static const std::wstring settings = L"Software\\Quorvane\\HomeKeySetting";

ScriptedSettings::ScriptedSettings()
{
    open.instead = [this](HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* opened) {
        if (path != settings) {
            return open.Real(root, path, options, access, opened);
        }
        EXPECT_EQ(root, HKEY_CURRENT_USER);
        return refused ? static_cast<LSTATUS>(ERROR_ACCESS_DENIED)
                       : open.Real(root, key.Path(), options, access, opened);
    };
    create.instead = [this](HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className, DWORD options,
                            REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* made, DWORD* disposition) {
        if (path != settings) {
            return create.Real(root, path, reserved, className, options, access, security, made, disposition);
        }
        EXPECT_EQ(root, HKEY_CURRENT_USER);
        created.emplace_back(path);
        return static_cast<LSTATUS>(ERROR_ACCESS_DENIED);
    };
}

void ScriptedSettings::WriteFile(const std::wstring& file) const
{
    Write(L"HomeKeyFile", REG_SZ, file.c_str(), static_cast<DWORD>((file.size() + 1) * sizeof(wchar_t)));
}

long long ScriptedSettings::Command() const
{
    DWORD command = 0;
    DWORD size = sizeof command;
    const LSTATUS result = RegGetValueW(HKEY_CURRENT_USER, key.Path(), L"HomeKeyCommand", RRF_RT_REG_DWORD,
                                        nullptr, &command, &size);
    return result == ERROR_SUCCESS ? static_cast<long long>(command) : -1;
}

std::wstring ScriptedSettings::File() const
{
    wchar_t file[pathSize] = {};
    DWORD size = sizeof file;
    RegGetValueW(HKEY_CURRENT_USER, key.Path(), L"HomeKeyFile", RRF_RT_REG_SZ, nullptr, file, &size);
    return file;
}
