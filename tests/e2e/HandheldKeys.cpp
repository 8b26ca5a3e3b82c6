// The handheld's keys as a program has them that runs on the substitutes.
#include "tests/e2e/HandheldKeys.h"

#include "rig/ChildProcess.h"
#include "rig/Desktop.h"
#include "rig/WaitFor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

static constexpr wchar_t noteFile[] = L"C:\\button note.txt";

HandheldKeys::HandheldKeys() : coredll(LoadLibraryW((rig::ProgramFolder() + L"\\coredll.dll").c_str()))
{
    EXPECT_TRUE(coredll);
}

HandheldKeys::~HandheldKeys()
{
    FreeLibrary(coredll);
}

template <class Function>
Function* HandheldKeys::Of(const char* name) const
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(coredll, name)));
}

bool HandheldKeys::Claim(HWND window, int id, int key, UINT modifiers) const
{
    return Drop(key) && Of<decltype(RegisterHotKey)>("RegisterHotKey")(window, id, modifiers, key);
}

bool HandheldKeys::Drop(int key) const
{
    return Of<BOOL WINAPI(UINT, UINT)>("UnregisterFunc1")(MOD_WIN, key) != FALSE;
}

bool HandheldKeys::Release(HWND window, int id) const
{
    return Of<decltype(UnregisterHotKey)>("UnregisterHotKey")(window, id) != FALSE;
}

bool HandheldKeys::IsDown(int key) const
{
    return Of<decltype(GetAsyncKeyState)>("GetAsyncKeyState")(key) != 0;
}

void HandheldKeys::Lock() const
{
    auto* const press = Of<decltype(keybd_event)>("keybd_event");
    press(0x85, 0, 1, 0);
    press(0x85, 0, 2, 0);
}

// Only there the home screen has no title.
bool IsSmartphoneSession()
{
    return rig::TextOf(rig::FindTopWindow({.className = L"DesktopExplorerWindow"})).empty();
}

std::wstring OwnCommand(const std::wstring& tail)
{
    return L"\"" + rig::ProgramFolder() + L"\\Quorvane.exe\" " + tail;
}

ButtonDefault::ButtonDefault(int button)
{
    wchar_t path[60];
    swprintf(path, 60, L"Software\\Microsoft\\Shell\\Keys\\40%02X", button);
    EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_ALL_ACCESS, &key), 0);
    DWORD size = 0;
    RegQueryValueExW(key, L"Default", nullptr, nullptr, nullptr, &size);
    before.resize(size);
    EXPECT_EQ(RegQueryValueExW(key, L"Default", nullptr, nullptr, before.data(), &size), 0);
}

ButtonDefault::~ButtonDefault()
{
    Set(REG_SZ, before.data(), static_cast<DWORD>(before.size()));
    RegCloseKey(key);
}

void ButtonDefault::Set(const std::wstring& command) const
{
    Set(REG_SZ, command.c_str(), static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t)));
}

void ButtonDefault::Set(DWORD type, const void* data, DWORD size) const
{
    EXPECT_EQ(RegSetValueExW(key, L"Default", 0, type, static_cast<const BYTE*>(data), size), 0);
}

void ButtonDefault::Remove() const
{
    EXPECT_EQ(RegDeleteValueW(key, L"Default"), 0);
}

static std::string Lines()
{
    std::ifstream file{std::filesystem::path(noteFile)};
    std::string line, all;
    while (std::getline(file, line)) {
        all += line.substr(0, line.find('\r')) + ";";
    }
    return all;
}

// A command that still has the file open would cost the next one its line.
static bool IsNobodyWriting()
{
    const HANDLE file =
        CreateFileW(noteFile, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(file);
    return true;
}

ButtonNote::ButtonNote()
{
    std::filesystem::remove(noteFile);
}

ButtonNote::~ButtonNote()
{
    std::filesystem::remove(noteFile);
}

std::wstring ButtonNote::Command(const std::wstring& line) const
{
    return L"\"C:\\windows\\system32\\cmd.exe\" /c echo " + line + L">>\"" + noteFile + L"\"";
}

bool ButtonNote::Becomes(const std::string& lines) const
{
    return rig::WaitFor([&] { return Lines() == lines && IsNobodyWriting(); });
}
