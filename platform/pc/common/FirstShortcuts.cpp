// What a new Start menu begins with.
#include "platform/pc/common/FirstShortcuts.h"

#include "platform/pc/common/WriteShortcut.h"

#include <windows.h>

namespace handheld {

namespace {

struct FirstShortcut
{
    const wchar_t* folder; // in the menu, with a backslash at its end; may be empty
    const wchar_t* name;
    const wchar_t* program;
    ShortcutForm form = ShortcutForm::Text;
};

} // namespace

static constexpr FirstShortcut firstShortcuts[] = {
    {L"", L"Quorvane", L"Quorvane.exe"},
    {L"Programs\\", L"Notepad", L"notepad.exe"},
    {L"Programs\\", L"WordPad", L"wordpad.exe"},
    {L"Programs\\", L"File Manager", L"winefile.exe"},
    {L"Programs\\Games\\", L"WineMine", L"winemine.exe"},
    {L"Programs\\Tools\\", L"Calculator", L"calc.exe"},
    {L"Programs\\Tools\\", L"Clock", L"clock.exe"},
    {L"Programs\\Tools\\", L"Control Panel", L"control.exe"},
    {L"Programs\\Tools\\", L"Paint", L"mspaint.exe"},
    {L"Programs\\Tools\\", L"Registry Editor", L"regedit.exe", ShortcutForm::Link},
    {L"Programs\\Tools\\", L"Task Manager", L"taskmgr.exe"},
    {L"Programs\\Tools\\", L"Version", L"winver.exe", ShortcutForm::Link},
};

static bool IsThere(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Empty when the program is nowhere.
static std::wstring FindProgram(const std::wstring& ownFolder, const wchar_t* program)
{
    wchar_t windows[MAX_PATH] = {};
    wchar_t system[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    GetSystemDirectoryW(system, MAX_PATH);
    const std::wstring accessories =
        std::wstring(windows).substr(0, 2) + L"\\Program Files\\Windows NT\\Accessories";
    for (const std::wstring& folder : {ownFolder, std::wstring(windows), std::wstring(system), accessories}) {
        std::wstring path = folder + L'\\' + program;
        if (IsThere(path)) {
            return path;
        }
    }
    return {};
}

// With all folders above it.
static bool MakeFolder(const std::wstring& path)
{
    for (size_t end = path.find(L'\\'); end != std::wstring::npos; end = path.find(L'\\', end + 1)) {
        CreateDirectoryW(path.substr(0, end).c_str(), nullptr);
    }
    CreateDirectoryW(path.c_str(), nullptr);
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

static bool IsMarked(const std::wstring& menu, const wchar_t* markKey)
{
    return RegGetValueW(HKEY_CURRENT_USER, markKey, menu.c_str(), RRF_RT_REG_DWORD, nullptr, nullptr,
                        nullptr) == ERROR_SUCCESS;
}

static void Mark(const std::wstring& menu, const wchar_t* markKey)
{
    const DWORD filled = 1;
    RegSetKeyValueW(HKEY_CURRENT_USER, markKey, menu.c_str(), REG_DWORD, &filled, sizeof filled);
}

void FillStartMenuOnce(const std::wstring& menu, const std::wstring& ownFolder, const wchar_t* markKey)
{
    if (IsMarked(menu, markKey) || !MakeFolder(menu)) {
        return;
    }
    for (const FirstShortcut& first : firstShortcuts) {
        const std::wstring folder = menu + L'\\' + first.folder;
        const std::wstring file = folder + first.name + L".lnk";
        const std::wstring program = FindProgram(ownFolder, first.program);
        if (!program.empty() && !IsThere(file) && MakeFolder(folder.substr(0, folder.size() - 1))) {
            WriteShortcut(file, program, first.form);
        }
    }
    Mark(menu, markKey);
}

} // namespace handheld
