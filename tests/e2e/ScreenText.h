// What texts look like on the handheld, to recognise those that no window tells: rows of lists, title strips,
// notices.
#pragma once

#include "rig/Picture.h"
#include "rig/WaitFor.h"

#include <string>

// An amount of pixels at 96 dpi on this screen.
int OnScreen(int pixels);

// The system font with another weight and a changed height.
class ScreenFont
{
    HFONT font;

  public:
    ScreenFont(LONG weight, LONG extraHeight);
    ~ScreenFont();
    ScreenFont(const ScreenFont&) = delete;
    ScreenFont& operator=(const ScreenFont&) = delete;

    HFONT Handle() const { return font; }
    // With the external leading.
    int LineHeight() const;
    SIZE SizeOf(const std::wstring& text) const;
    // The text's own rectangle in an area, by DT_CALCRECT.
    RECT Layout(const std::wstring& text, RECT area, UINT format) const;
    // A text in a rectangle of a coloured picture.
    rig::Picture Draw(SIZE picture, COLORREF background, COLORREF colour, const std::wstring& text, RECT area,
                      UINT format) const;
};

// Waits until the row of a list has this name, beginning where names do; the rest of the row does not matter.
bool RowShowsName(HWND list, int row, const std::wstring& name,
                  std::chrono::milliseconds timeout = rig::patience);

// The same in another font than the first page's.
bool RowShowsName(HWND list, int row, const std::wstring& name, const ScreenFont& font,
                  std::chrono::milliseconds timeout = rig::patience);
// Waits until a size, or any text, stands at the right end of a row, as far as that page leaves it.
bool RowShowsSize(HWND list, int row, const std::wstring& size, const ScreenFont& font, int rightMargin,
                  std::chrono::milliseconds timeout = rig::patience);

// Waits until the timed notice is shown with this text.
bool NoticeSays(HWND mainWindow, HWND notice, const std::wstring& text);
