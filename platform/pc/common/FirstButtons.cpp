// What the hardware buttons of a new handheld start.
#include "platform/pc/common/FirstButtons.h"

#include "platform/pc/common/ButtonCommand.h"
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/HandheldKeys.h"
#include "platform/pc/common/MachineKeys.h"

namespace handheld {

namespace {

// Paths of the device; the first one that is there is the button's.
struct FirstCommand
{
    const wchar_t* choices[3];
};

} // namespace

static constexpr FirstCommand firstCommands[buttonCount] = {
    {{L"\\Windows\\notepad.exe", L"\\Windows\\system32\\notepad.exe", nullptr}},
    {{L"\\Windows\\Start Menu\\Programs\\Games\\WineMine.lnk", L"\\Windows\\system32\\winemine.exe",
      L"\\Windows\\system32\\mspaint.exe"}},
    {{L"\\Windows\\regedit.exe", L"\\Windows\\system32\\regedit.exe", nullptr}},
    {{L"\\Windows\\Start Menu\\Programs\\Tools\\Clock.lnk", L"\\Windows\\system32\\clock.exe",
      L"\\Windows\\system32\\charmap.exe"}},
};

static bool Exists(const wchar_t* path)
{
    return GetFileAttributesW(DevicePath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

static std::wstring FirstCommandOf(const FirstCommand& first)
{
    for (const wchar_t* choice : first.choices) {
        if (choice && Exists(choice)) {
            return L'"' + std::wstring(choice) + L'"';
        }
    }
    return {};
}

static void SetText(HKEY key, const wchar_t* name, const std::wstring& text)
{
    RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

static void SetNumber(HKEY key, const wchar_t* name, DWORD number)
{
    RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
}

// False when there is no place to write to.
static bool FillButton(int index)
{
    HKEY key = nullptr;
    DWORD disposition = 0;
    if (CreateMachineKey(HKEY_LOCAL_MACHINE, ButtonKey(firstButton + index).c_str(), 0, nullptr, 0,
                         KEY_SET_VALUE, nullptr, &key, &disposition) != ERROR_SUCCESS) {
        return false;
    }
    if (disposition == REG_CREATED_NEW_KEY) {
        const std::wstring command = FirstCommandOf(firstCommands[index]);
        SetText(key, L"Name", L"Button " + std::to_wstring(index + 1));
        SetText(key, L"Default", command);
        SetText(key, L"ResetCmd", command);
        SetNumber(key, L"Flags", 0);
        SetNumber(key, L"ResetFlags", 0);
        SetNumber(key, L"BtnWnd", 0);
        SetText(key, L"WndCls", {});
    }
    RegCloseKey(key);
    return true;
}

void FillButtonsOnce(const wchar_t* markKey)
{
    static constexpr wchar_t mark[] = L"Buttons";
    if (RegGetValueW(HKEY_CURRENT_USER, markKey, mark, RRF_RT_REG_DWORD, nullptr, nullptr, nullptr) ==
        ERROR_SUCCESS) {
        return;
    }
    for (int i = 0; i < buttonCount; ++i) {
        if (!FillButton(i)) {
            return;
        }
    }
    const DWORD filled = 1;
    RegSetKeyValueW(HKEY_CURRENT_USER, markKey, mark, REG_DWORD, &filled, sizeof filled);
}

} // namespace handheld
