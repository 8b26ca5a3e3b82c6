// The object behind a window.
#pragma once

#include <windows.h>

namespace handheld {

// For a window procedure: the object that CreateWindowExW was given as its parameter. Null before
// WM_NCCREATE, and once ForgetObject has been called.
template <class Object>
Object* ObjectOf(HWND window, UINT message, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        void* created = reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    return reinterpret_cast<Object*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

inline void ForgetObject(HWND window)
{
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
}

} // namespace handheld
