// The title strip of the pages.
#include "pages/TitleStrip.h"

#include "framework/Gdi.h"
#include "framework/Scale.h"
#include "lists/CLB_Base.h"
#include "pages/PageTable.h"
#include "resources/ids.h"

static void DrawBottomLine(HDC target, const RECT& strip)
{
    GdiObject<HPEN> pen(CreatePen(PS_SOLID, ScaleX(1), GetSysColor(COLOR_WINDOWTEXT)));
    Selection selected(target, pen);
    MoveToEx(target, strip.left, strip.bottom - 1, nullptr);
    LineTo(target, strip.right, strip.bottom - 1);
}

// Both heads are made of vertical lines, the tips at the strip's outer ends.
static void DrawArrowheads(HDC target, const RECT& strip, int size)
{
    const int top = strip.top + (strip.bottom - strip.top - size) / 2;
    for (int i = 0; i <= size / 2; ++i) {
        const int fromTip = size / 2 - i;
        const int left = strip.left + ScaleX(3) + fromTip;
        const int right = strip.right - ScaleX(3) - fromTip;
        MoveToEx(target, left, top + i, nullptr);
        LineTo(target, left, top + size - i);
        MoveToEx(target, right, top + i, nullptr);
        LineTo(target, right, top + size - i);
    }
}

void DrawTitleStrip(HDC target, const RECT& client, int height, const wchar_t* title, HFONT boldFont,
                    const CLB_Base& list)
{
    RECT strip = client;
    strip.bottom = strip.top + height;
    const int arrow = height / 2;

    // The list erases its whole client area; the rows below are not to be touched.
    IntersectClipRect(target, strip.left, strip.top, strip.right, strip.bottom);
    list.EraseLikeList(target);
    DrawBottomLine(target, strip);
    DrawArrowheads(target, strip, arrow);

    strip.left += ScaleX(6) + arrow;
    strip.right -= ScaleX(6) + arrow;
    Selection font(target, boldFont);
    SetTextColor(target, GetSysColor(COLOR_WINDOWTEXT));
    SetBkMode(target, TRANSPARENT);
    DrawTextW(target, title, -1, &strip, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

StripZone TitleStripZone(int x, const RECT& client, int height)
{
    const int zone = ScaleX(8) + height / 2;
    if (x <= client.left + zone) {
        return StripZone::PreviousPage;
    }
    return x >= client.right - zone ? StripZone::NextPage : StripZone::Title;
}

uint32_t TrackTitleStripMenu(HWND window, POINT point, uint32_t ownCommand)
{
    HMENU menu = CreatePopupMenu();
    for (const SPage& page : pageRing) {
        AppendMenuW(menu, page.showCommand == ownCommand ? MF_STRING | MF_GRAYED : MF_STRING,
                    page.showCommand, page.menuText);
    }
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu, MF_STRING, CMD_REFRESH, L"Refresh");

    MapWindowPoints(window, nullptr, &point, 1);
    const BOOL chosen = TrackPopupMenuEx(menu, TPM_RETURNCMD, point.x, point.y, window, nullptr);
    DestroyMenu(menu);
    return static_cast<uint32_t>(chosen);
}
