// How a window procedure finds its object: through the window's user data, set from the creation parameter.
#pragma once

#include "platform/ce.h"

// The object behind window, or null before its creation message and after ForgetWindowObject. The creation
// message itself stores its parameter, so it is the first message an object sees.
template <typename T>
T* WindowObject(HWND window, UINT message, LPARAM lParam)
{
    if (message == WM_CREATE) {
        auto* creation = reinterpret_cast<CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    return reinterpret_cast<T*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

// For an object that dies before its window: later messages find no object.
inline void ForgetWindowObject(HWND window)
{
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
}
