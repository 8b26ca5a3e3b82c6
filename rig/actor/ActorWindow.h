// ActorWindow: one window of actor.exe, made and behaving as ordered.
#pragma once

#include "rig/actor/Protocol.h"

namespace actor {

class ActorWindow
{
    HWND window = nullptr;
    WindowOrder order;
    int closes = 0; // WM_CLOSE received
    int keys = 0;   // WM_KEYDOWN received
    int moves = 0;  // WM_MOUSEMOVE received

  public:
    // Null when the window cannot be made.
    static HWND Make(const WindowOrder& order);

    explicit ActorWindow(const WindowOrder& wanted) : order(wanted) {}
    ActorWindow(const ActorWindow&) = delete;
    ActorWindow& operator=(const ActorWindow&) = delete;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void OnClose();
    void OnPaint();
};

} // namespace actor
