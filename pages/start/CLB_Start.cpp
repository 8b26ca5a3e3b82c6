// Rows of the launcher page.
#include "pages/start/CLB_Start.h"

#include "lists/CRowPainter.h"
#include "pages/start/CSearchBox.h"

static constexpr SListTraits listTraits = {L"CLB_Start::Construct", L"CLB_Start::RecreateColumns", true};

CLB_Start::CLB_Start(const CRowLook& rowLook, const CArray<SAppsList*>& shownPrograms,
                     const CSearchBox& searchBox, const HFONT& matchFont)
    : CLB_Programs(listTraits, rowLook, shownPrograms), search(searchBox), underlinedFont(matchFont)
{}

// Draws so many characters and leaves the rest of area to what follows.
static void DrawPiece(CRowPainter& painter, HFONT font, const wchar_t* text, uint32_t length, RECT& area)
{
    if (length > 0) {
        CStr piece;
        piece.Assign(text, length);
        painter.DrawLeft(font, piece, area);
        area.left += painter.Width(font, piece);
    }
}

void CLB_Start::DrawName(CRowPainter& painter, const CStr& name, const RECT& area)
{
    CStr lowered(name);
    lowered.MakeLower();
    const int place = search.Lowered().IsEmpty() ? -1 : search.PlaceIn(lowered);
    if (place == -1) {
        CLB_Programs::DrawName(painter, name, area);
        return;
    }
    const auto before = static_cast<uint32_t>(place);
    const uint32_t behind = before + search.Lowered().Length();
    RECT rest = area;
    DrawPiece(painter, look.NormalFont(), name, before, rest);
    DrawPiece(painter, underlinedFont, name.At(before), search.Lowered().Length(), rest);
    DrawPiece(painter, look.NormalFont(), name.At(behind), name.Length() - behind, rest);
}

void CLB_Start::EmptyText(CStr& text) const
{
    if (search.Typed().IsEmpty()) {
        text = L"No applications detected";
        return;
    }
    text = L"No matches: ";
    text.Append(search.Typed());
}

// Typing goes on in the search box, whatever gave the list the focus.
void CLB_Start::AfterControl(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    if (message == WM_SETFOCUS) {
        SetFocus(search.Window());
    }
}
