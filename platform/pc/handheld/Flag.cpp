// Flag: the button at the left end of the top bar.
#include "platform/pc/handheld/Flag.h"

#include "platform/pc/common/BarLook.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/handheld/StartMenu.h"

using handheld::Scaled;

static constexpr COLORREF panes[] = {RGB(226, 92, 66), RGB(120, 190, 80), RGB(80, 150, 220),
                                     RGB(248, 200, 80)};

RECT Flag::Place(const RECT& client)
{
    return {client.left, client.top, client.left + Scaled(6 + 6 + 1 + 6 + 6), client.bottom};
}

void Flag::Paint(handheld::Surface& surface) const
{
    const RECT place = Place(surface.Client());
    if (pressed || menuOpen) {
        handheld::PaintPressedKey(surface, place);
    }
    const int pane = Scaled(6);
    const int gap = Scaled(1);
    const int left = Scaled(6);
    const int top = (place.bottom - 2 * pane - gap) / 2;
    for (int i = 0; i < 4; ++i) {
        const int x = left + i % 2 * (pane + gap);
        const int y = top + i / 2 * (pane + gap);
        surface.Fill({x, y, x + pane, y + pane}, panes[i]);
    }
}

bool Flag::IsOn(POINT point) const
{
    RECT client;
    GetClientRect(bar, &client);
    const RECT place = Place(client);
    return PtInRect(&place, point) != FALSE;
}

void Flag::Repaint() const
{
    InvalidateRect(bar, nullptr, FALSE);
    UpdateWindow(bar);
}

void Flag::Press(POINT point)
{
    if (IsOn(point)) {
        SetCapture(bar);
        pressed = true;
        Repaint();
    }
}

void Flag::Release(POINT point)
{
    if (!pressed) {
        return;
    }
    ReleaseCapture();
    Cancel();
    if (IsOn(point)) {
        OpenMenu();
    }
}

void Flag::Cancel()
{
    if (pressed) {
        pressed = false;
        Repaint();
    }
}

void Flag::OpenMenu()
{
    RECT client;
    GetClientRect(bar, &client);
    RECT place = Place(client);
    MapWindowPoints(bar, nullptr, reinterpret_cast<POINT*>(&place), 2);
    menuOpen = true;
    Repaint();
    ShowStartMenu(bar, {place.left, place.bottom}, place);
    menuOpen = false;
    Repaint();
}
