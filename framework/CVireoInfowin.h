// A borderless popup that shows a short text over the main window, hides itself after a time and may blink.
#pragma once

#include "framework/CStr.h"
#include "platform/ce.h"

class CVireoInfowin
{
    HWND window = nullptr;
    UINT_PTR hideTimer = 0;  // 0 when not running
    bool textHidden = false; // blink phase
    UINT_PTR blinkTimer = 0; // 0 when not running
    CStr text;
    RECT textRect = {}; // client coordinates

  public:
    CVireoInfowin() = default;
    CVireoInfowin(const CVireoInfowin&) = delete;
    CVireoInfowin& operator=(const CVireoInfowin&) = delete;
    ~CVireoInfowin();

    // Creates the hidden window, owned by the main window; fatal when the class or the window cannot be made.
    void Construct();
    // Shows newText without taking the focus. hideAfterMs 0: until Hide or a tap; blinkMs 0: without
    // blinking; placement: InfoPlacement bits.
    void Show(const wchar_t* newText, uint32_t hideAfterMs, uint32_t placement, uint32_t blinkMs);
    void Hide();

    HWND Window() const { return window; }

  private:
    void KillTimers();
    SIZE Measure(const RECT& area, int& lineGap, int& digitWidth);
    void Paint(HDC target) const;
    static LRESULT CALLBACK InfoWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};
