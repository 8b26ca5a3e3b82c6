// Flag: the button at the left end of the top bar, whose four panes open the Start menu.
#pragma once

#include "platform/pc/common/Surface.h"

class Flag
{
    HWND bar = nullptr;
    bool pressed = false;
    bool menuOpen = false;

  public:
    // Of the bar's client area; what is right of it is the bar's own.
    static RECT Place(const RECT& client);

    void Attach(HWND topBar) { bar = topBar; }
    void Paint(handheld::Surface& surface) const;
    // The stylus went down or up at a point of the bar's client area.
    void Press(POINT point);
    void Release(POINT point);
    // The stylus went elsewhere.
    void Cancel();

  private:
    bool IsOn(POINT point) const;
    void Repaint() const;
    void OpenMenu();
};
