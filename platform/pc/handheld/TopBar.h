// TopBar: the bar above every program, with the Start menu, the active window's title and the time.
#pragma once

#include "platform/pc/handheld/Flag.h"
#include "platform/pc/handheld/ShellWindow.h"

class TopBar final : public ShellWindow
{
  public:
    // today: the window that is shown as "Start".
    explicit TopBar(HWND homeScreen);
    ~TopBar() override;

    bool Open();

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Paint(handheld::Surface& surface) override;
    static RECT Place();
    std::wstring TitleOfForeground() const;
    void MakeRoom(HWND front) const;
    void Update();

    HWND today;
    Flag flag;
    std::wstring title;
    std::wstring time;
    HFONT bold;
    HFONT normal;
};
