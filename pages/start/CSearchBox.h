// The box that the launcher's search is typed into.
#pragma once

#include "framework/CStr.h"

class CSearchBox
{
    HWND window = nullptr;
    WNDPROC originalProcedure = nullptr;
    CStr typed;   // as it was read last
    CStr lowered; // the same in small letters

  public:
    CSearchBox() = default;
    CSearchBox(const CSearchBox&) = delete;
    CSearchBox& operator=(const CSearchBox&) = delete;
    ~CSearchBox();

    void Construct(HWND parent);
    void Read();

    HWND Window() const { return window; }
    const CStr& Typed() const { return typed; }
    const CStr& Lowered() const { return lowered; }
    // Where the search begins in a text that is in small letters already; -1 when it is not in it.
    int PlaceIn(const CStr& loweredText) const { return loweredText.Find(lowered, 0); }

  private:
    static LRESULT CALLBACK BoxProc(HWND box, UINT message, WPARAM wParam, LPARAM lParam);
};
