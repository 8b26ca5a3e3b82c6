// BoxParts: what a message box consists of.
#include "platform/pc/common/BoxParts.h"

namespace handheld {

BoxParts::BoxParts(HWND box)
{
    EnumChildWindows(box, Add, reinterpret_cast<LPARAM>(this));
}

BOOL CALLBACK BoxParts::Add(HWND child, LPARAM parameter)
{
    auto& parts = *reinterpret_cast<BoxParts*>(parameter);
    const LONG style = GetWindowLongW(child, GWL_STYLE);
    wchar_t name[16];
    // The box has all the buttons there are and hides those it does not need.
    if (GetClassNameW(child, name, 16) == 0 || !(style & WS_VISIBLE)) {
        return TRUE;
    }
    if (lstrcmpiW(name, L"Button") == 0) {
        parts.buttons.push_back(child);
    } else if (lstrcmpiW(name, L"Static") == 0) {
        ((style & SS_TYPEMASK) == SS_ICON ? parts.sign : parts.text) = child;
    }
    return TRUE;
}

} // namespace handheld
