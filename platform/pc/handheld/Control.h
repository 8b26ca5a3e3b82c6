// Control: the hidden window by which scripts find the handheld and end it.
#pragma once

#include "platform/pc/handheld/ShellWindow.h"

class Keys;

class Control final : public ShellWindow
{
  public:
    // Null when no handheld runs on this desktop.
    static HWND Find();
    // Whether its shell's windows are on the screen.
    static bool IsReady(HWND control);

    bool Open();
    // From then on its messages go to the keys, which must outlive it or be taken away with null.
    void Serve(Keys* handheldKeys) { keys = handheldKeys; }
    void SetReady();

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    Keys* keys = nullptr;
};
