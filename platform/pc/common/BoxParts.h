// BoxParts: what a message box consists of.
#pragma once

#include <windows.h>

#include <vector>

namespace handheld {

struct BoxParts
{
    HWND text = nullptr;
    HWND sign = nullptr;       // null when the box has none
    std::vector<HWND> buttons; // from left to right

    explicit BoxParts(HWND box);

  private:
    static BOOL CALLBACK Add(HWND child, LPARAM parameter);
};

} // namespace handheld
