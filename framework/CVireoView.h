// A full-screen page of the main window, with a soft-key menu bar and accelerators of its own.
#pragma once

#include "platform/ce.h"

class CVireoView
{
  protected:
    int32_t id = 0;
    uint32_t menuBarId = 0;
    uint32_t acceleratorId = 0;
    HWND window = nullptr;
    HACCEL accelerators = nullptr; // null when acceleratorId is 0

    // Registers the view's own window class, creates its window over the main window's client area, calls
    // OnCreate and lays the view out once; it stays hidden until it is activated. Failures are fatal.
    void BaseConstruct(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId);

  public:
    CVireoView() = default;
    CVireoView(const CVireoView&) = delete;
    CVireoView& operator=(const CVireoView&) = delete;

    // Prepares the view's own state and calls BaseConstruct with the same arguments.
    virtual void Create(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId) = 0;
    virtual ~CVireoView();
    // The window exists: create the child controls.
    virtual void OnCreate();
    // The main window is going; the view is deleted right after.
    virtual void OnDestroy();
    // Just shown and focused. previousViewId is 0 for the first activation.
    virtual void OnActivate(int32_t previousViewId);
    virtual void OnDeactivate();
    virtual void OnPaint(HDC deviceContext);
    // From the menu bar or a child control. The view may be gone when a command returns.
    virtual void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control);
    virtual void OnInitMenuPopup(HMENU menu, uint32_t index);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    int32_t Id() const { return id; }
    uint32_t MenuBarId() const { return menuBarId; }
    HWND Window() const { return window; }
    HACCEL Accelerators() const { return accelerators; }

  private:
    static LRESULT CALLBACK ViewWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};
