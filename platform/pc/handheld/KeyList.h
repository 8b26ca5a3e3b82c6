// KeyList: the handheld's keys, for the user to read.
#pragma once

#include "platform/pc/handheld/ShellWindow.h"

#include <string>

class KeyList final : public ShellWindow
{
  public:
    KeyList();
    ~KeyList() override;

    // Shows it in front; hides it when it is shown, as do any other key and a tap.
    void Toggle();

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Paint(handheld::Surface& surface) override;
    void Open();
    void Close();

    HWND previous = nullptr; // what was in front
    HFONT bold;
    HFONT normal;
};

// The same list as text, a key a line.
std::wstring KeyListText();
