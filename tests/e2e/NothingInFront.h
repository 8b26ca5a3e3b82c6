// NothingInFront: while it lives, a thread is in front that has no active window.
#pragma once

#include "rig/Desktop.h"

class NothingInFront
{
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 26, 50, 50, nullptr,
                                        nullptr, nullptr, nullptr);

  public:
    NothingInFront()
    {
        rig::BringToFront(window);
        SetActiveWindow(nullptr);
    }
    ~NothingInFront() { DestroyWindow(window); }
    NothingInFront(const NothingInFront&) = delete;
    NothingInFront& operator=(const NothingInFront&) = delete;
};
