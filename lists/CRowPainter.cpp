// Draws rows.
#include "lists/CRowPainter.h"

#include "framework/Scale.h"

static constexpr UINT leftText = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
static constexpr UINT rightText = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
static_assert(leftText == 0x8024 && rightText == 0x8026);

CRowPainter::CRowPainter(HDC deviceContext, const RECT& rowRect, bool selected)
    : target(deviceContext), row(rowRect)
{
    if (selected) {
        FillRect(target, &row, GetSysColorBrush(COLOR_HIGHLIGHT));
    }
    savedTextColour = SetTextColor(target, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    savedBackColour = SetBkColor(target, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    savedMode = SetBkMode(target, TRANSPARENT);
}

CRowPainter::~CRowPainter()
{
    if (savedFont != nullptr) {
        SelectObject(target, savedFont);
    }
    SetBkMode(target, savedMode);
    SetBkColor(target, savedBackColour);
    SetTextColor(target, savedTextColour);
}

void CRowPainter::UseFont(HFONT font)
{
    HGDIOBJ previous = SelectObject(target, font);
    if (savedFont == nullptr) {
        savedFont = previous;
    }
}

void CRowPainter::DrawIcon(HIMAGELIST icons, int index, int iconHeight)
{
    const int y = row.top + (row.bottom - row.top - iconHeight) / 2;
    ImageList_Draw(icons, index, target, row.left + ScaleX(4), y, ILD_NORMAL);
}

void CRowPainter::DrawIcon(HICON icon, int size)
{
    const int y = row.top + (row.bottom - row.top - size) / 2;
    DrawIconEx(target, row.left + ScaleX(4), y, icon, size, size, 0, nullptr, DI_NORMAL);
}

RECT CRowPainter::TextArea(int iconWidth) const
{
    RECT area = row;
    area.left += ScaleX(8) + iconWidth;
    return area;
}

void CRowPainter::DrawLeft(HFONT font, const wchar_t* text, const RECT& area)
{
    UseFont(font);
    RECT rect = area;
    DrawTextW(target, text, -1, &rect, leftText);
}

int CRowPainter::Width(HFONT font, const wchar_t* text)
{
    UseFont(font);
    RECT rect = {};
    DrawTextW(target, text, -1, &rect, DT_CALCRECT | DT_LEFT | DT_SINGLELINE);
    return rect.right;
}

int CRowPainter::DrawRight(HFONT font, const wchar_t* text, const RECT& area)
{
    UseFont(font);
    RECT rect = area;
    DrawTextW(target, text, -1, &rect, rightText);
    SIZE size = {};
    GetTextExtentExPointW(target, text, static_cast<int>(wcslen(text)), 0, nullptr, nullptr, &size);
    return size.cx;
}
