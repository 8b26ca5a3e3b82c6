// KeysScreen: Quorvane on a handheld whose buttons the test chooses.
#include "tests/e2e/keys/KeysScreen.h"

using namespace rig;

static constexpr wchar_t shellKeys[] = L"Software\\Microsoft\\Shell\\Keys";
static constexpr wchar_t keptKeys[] = L"Software\\Quorvane Tests\\Keys";

static HKEY Open(HKEY root, const wchar_t* path)
{
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExW(root, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    return key;
}

static void Copy(HKEY fromRoot, const wchar_t* from, HKEY toRoot, const wchar_t* to)
{
    const HKEY source = Open(fromRoot, from);
    const HKEY target = Open(toRoot, to);
    EXPECT_EQ(RegCopyTreeW(source, nullptr, target), ERROR_SUCCESS);
    RegCloseKey(source);
    RegCloseKey(target);
}

KeysScreen::KeysScreen()
{
    RegDeleteTreeW(HKEY_CURRENT_USER, keptKeys);
    Copy(HKEY_LOCAL_MACHINE, shellKeys, HKEY_CURRENT_USER, keptKeys);
    Clear();
}

KeysScreen::~KeysScreen()
{
    Clear();
    Copy(HKEY_CURRENT_USER, keptKeys, HKEY_LOCAL_MACHINE, shellKeys);
    RegDeleteTreeW(HKEY_CURRENT_USER, keptKeys);
}

void KeysScreen::Clear()
{
    const HKEY keys = Open(HKEY_LOCAL_MACHINE, shellKeys);
    EXPECT_EQ(RegDeleteTreeW(keys, nullptr), ERROR_SUCCESS);
    RegCloseKey(keys);
}

static void WriteText(HKEY key, const wchar_t* value, const std::wstring& text)
{
    RegSetValueExW(key, value, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void KeysScreen::AddButton(const std::wstring& key, const std::wstring& name, const std::wstring& command,
                           const std::wstring& resetCommand, DWORD resetFlags)
{
    const HKEY button = Open(HKEY_LOCAL_MACHINE, (std::wstring(shellKeys) + L"\\" + key).c_str());
    WriteText(button, L"Name", name);
    WriteText(button, L"Default", command);
    WriteText(button, L"ResetCmd", resetCommand);
    RegSetValueExW(button, L"ResetFlags", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&resetFlags),
                   sizeof resetFlags);
    RegCloseKey(button);
}

KeysScreen::Values KeysScreen::ButtonValues(const std::wstring& key)
{
    Values values;
    const HKEY button = Open(HKEY_LOCAL_MACHINE, (std::wstring(shellKeys) + L"\\" + key).c_str());
    for (DWORD i = 0;; i++) {
        wchar_t name[100] = {};
        DWORD nameSize = 100;
        wchar_t data[600] = {};
        DWORD size = sizeof data - sizeof(wchar_t);
        DWORD type = 0;
        if (RegEnumValueW(button, i, name, &nameSize, nullptr, &type, reinterpret_cast<BYTE*>(data), &size) !=
            ERROR_SUCCESS) {
            break;
        }
        values[name] =
            type == REG_DWORD ? std::to_wstring(*reinterpret_cast<const DWORD*>(data)) : std::wstring(data);
    }
    RegCloseKey(button);
    return values;
}

HWND KeysScreen::OpenByMenu() const
{
    if (!PressMenuKey()) {
        return nullptr;
    }
    MenuKeys(VK_UP, 2); // Exit, More
    MenuKeys(VK_RIGHT);
    MenuKeys(VK_RETURN);
    return WaitFor([&] {
        const HWND dialog = program->Dialog();
        return dialog && InFront(dialog) && BarOf(dialog) ? dialog : nullptr;
    });
}

HWND KeysScreen::WaitForPicker(HWND dialog) const
{
    return WaitFor([&] {
        const HWND picker = program->Dialog();
        return picker != dialog && picker && ListCount(GetDlgItem(picker, IDC_LIST)) > 0 && BarOf(picker)
                   ? picker
                   : nullptr;
    });
}

bool KeysScreen::Close(HWND dialog, WORD softKey) const
{
    PressKey(softKey);
    return WaitFor([=] { return !IsWindow(dialog); }) && InFront(main);
}

bool KeysScreen::HasFocus(HWND control)
{
    return WaitFor([=] { return FocusOf(GetParent(control)) == control; });
}

bool KeysScreen::Shows(HWND control, const std::wstring& text)
{
    const bool isListBox = ClassOf(control) == L"ListBox";
    return WaitFor([&] {
        if (!isListBox) {
            return TextOf(control) == text;
        }
        wchar_t shown[300] = {};
        const LRESULT row = Send(control, LB_GETCURSEL);
        Send(control, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(shown));
        return shown == text;
    });
}
