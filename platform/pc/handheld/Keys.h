// Keys: what the handheld's own keys do.
#pragma once

#include "platform/pc/common/HotKeyTable.h"
#include "platform/pc/handheld/KeyHook.h"
#include "platform/pc/handheld/KeyList.h"
#include "platform/pc/handheld/LockScreen.h"

class Keys
{
  public:
    Keys(HWND controlWindow, HWND homeScreen);

    // False when the system refuses.
    bool Start();

    // The control window's messages. True when it was one of the keys', with its result.
    bool HandleMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

  private:
    void Press(int key);
    void Release(int key);
    void Lock();

    HWND control;
    HWND today;
    handheld::HotKeyTable claims;
    KeyHook hook;
    LockScreen lockScreen;
    KeyList keyList;
};

// Puts the commands of a new handheld's buttons into the registry.
void FillButtons();
