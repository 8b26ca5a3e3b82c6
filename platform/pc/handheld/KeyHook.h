// KeyHook: sees every key of the keyboard before any program does.
#pragma once

#include "platform/pc/common/KeyFilter.h"

#include <atomic>

// Runs on a thread of its own: while a low-level hook does not answer, nobody's keys move.
class KeyHook
{
  public:
    // Tells this window of the handheld's own keys, by WM_HANDHELD_KEY and WM_KEY_WHILE_LOCKED.
    explicit KeyHook(HWND control);
    ~KeyHook();
    KeyHook(const KeyHook&) = delete;
    KeyHook& operator=(const KeyHook&) = delete;

    // False when the system refuses.
    bool Start();
    void SetLocked(bool locked) { isLocked = locked; }

  private:
    static DWORD WINAPI Run(void* self);
    static LRESULT CALLBACK SeeKey(int code, WPARAM wParam, LPARAM lParam);
    bool TakeKey(const KBDLLHOOKSTRUCT& key);
    void Tell(const handheld::KeyEvent& event) const;

    HWND control;
    handheld::KeyFilter filter; // the hook's thread alone uses it
    std::atomic<bool> isLocked = false;
    HANDLE started = nullptr;
    HANDLE thread = nullptr;
    DWORD threadId = 0;
    HHOOK hook = nullptr;
};
