// ShellWindow: what the windows of the handheld's shell have in common.
#pragma once

#include "platform/pc/common/Surface.h"

class ShellWindow
{
  public:
    virtual ~ShellWindow();
    ShellWindow(const ShellWindow&) = delete;
    ShellWindow& operator=(const ShellWindow&) = delete;

    HWND Window() const { return window; }

  protected:
    ShellWindow() = default;

    // Registers the class and creates a pop-up over the rectangle; false when the system refuses.
    bool Create(const wchar_t* className, const wchar_t* title, DWORD style, DWORD exStyle, const RECT& rect);

    virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void Paint(handheld::Surface& surface);

  private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window = nullptr;
};
