// The places on the screen that no two tours have the same.
#include "tools/tour/ChangingPlaces.h"

#include "platform/pc/common/Screen.h"
#include "resources/ids.h"
#include "rig/Desktop.h"
#include "rig/Picture.h"

using namespace rig;

// At the right end of the handheld's top bar, which is none of the program's.
static RECT Clock()
{
    RECT bar = ScreenRectOf(FindWindowW(L"Shell_TrayWnd", nullptr));
    bar.left = bar.right - handheld::Scaled(68);
    return bar;
}

// Of the thread in front; empty when it has none.
static RECT Caret()
{
    GUITHREADINFO threads = {};
    threads.cbSize = sizeof(threads);
    if (!GetGUIThreadInfo(0, &threads) || !threads.hwndCaret) {
        return {};
    }
    MapWindowPoints(threads.hwndCaret, nullptr, reinterpret_cast<POINT*>(&threads.rcCaret), 2);
    return threads.rcCaret;
}

// On the screen, of a character in a control of several lines.
static POINT PlaceOfCharacter(HWND text, size_t character)
{
    const LRESULT place = Send(text, EM_POSFROMCHAR, character);
    POINT point = {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
    ClientToScreen(text, &point);
    return point;
}

// From the number, which stands at the end of its line, to the right edge.
static void AddNumbers(HWND text, std::vector<RECT>& places)
{
    const RECT area = ClientRectOnScreen(text);
    const auto secondLine = static_cast<size_t>(Send(text, EM_LINEINDEX, 1));
    const LONG height = PlaceOfCharacter(text, secondLine).y - PlaceOfCharacter(text, 0).y;
    const std::wstring all = TextOf(text);
    for (size_t at = all.find(L"0x"); at != std::wstring::npos; at = all.find(L"0x", at + 1)) {
        const POINT place = PlaceOfCharacter(text, at);
        const RECT number = {place.x, place.y, area.right, place.y + height};
        RECT seen;
        if (IntersectRect(&seen, &number, &area)) {
            places.push_back(seen);
        }
    }
}

std::vector<RECT> ChangingPlaces(HWND dialog)
{
    std::vector<RECT> places = {Clock(), Caret()};
    const HWND report = dialog ? GetDlgItem(dialog, IDC_INFORMATION_TEXT) : nullptr;
    if (report) {
        AddNumbers(report, places);
    }
    return places;
}
