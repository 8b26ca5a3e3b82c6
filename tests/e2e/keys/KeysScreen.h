// KeysScreen: Quorvane on a handheld whose buttons the test chooses; the hardware keys dialog, used as a user
// does.
#pragma once

#include "rig/Controls.h"
#include "tests/e2e/ShellSession.h"

#include <map>
#include <string>

class KeysScreen : public ShellSession
{
  protected:
    using Values = std::map<std::wstring, std::wstring>; // numbers in decimal

    // The handheld has no buttons but those that the test adds, until it is over.
    KeysScreen();
    ~KeysScreen() override;

    static void AddButton(const std::wstring& key, const std::wstring& name, const std::wstring& command,
                          const std::wstring& resetCommand, DWORD resetFlags);
    // All that the shell keeps of a button.
    static Values ButtonValues(const std::wstring& key);
    static std::wstring Command(const std::wstring& key) { return ButtonValues(key)[L"Default"]; }

    // "More", "Hardware keys" by the keys of the page's menu. Null when no dialog opens.
    HWND OpenByMenu() const;
    // The picker above the dialog, with its list filled. Null when it does not open.
    HWND WaitForPicker(HWND dialog) const;
    // A soft key closes the dialog that is in front; true when Quorvane's page has the keyboard then.
    bool Close(HWND dialog, WORD softKey) const;

    // Whether a drop-down list, or the list of buttons, comes to show this text.
    static bool Shows(HWND control, const std::wstring& text);
    static bool HasFocus(HWND control);

  private:
    static void Clear();
};
