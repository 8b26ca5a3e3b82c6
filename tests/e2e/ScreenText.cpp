// What texts look like on the handheld.
#include "tests/e2e/ScreenText.h"

#include "rig/Controls.h"

using rig::Picture;

static constexpr int widthAt96 = 240;
static constexpr int points = 9;
static constexpr UINT rowText = DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

static bool HasFace(const wchar_t* face)
{
    LOGFONTW wanted = {};
    wanted.lfCharSet = DEFAULT_CHARSET;
    lstrcpynW(wanted.lfFaceName, face, LF_FACESIZE);
    const auto found = [](const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM parameter) -> int {
        *reinterpret_cast<bool*>(parameter) = true;
        return 0;
    };
    bool has = false;
    const HDC screen = GetDC(nullptr);
    EnumFontFamiliesExW(screen, &wanted, found, reinterpret_cast<LPARAM>(&has), 0);
    ReleaseDC(nullptr, screen);
    return has;
}

// Calls with the font in a device context of the screen's kind.
template <class Use>
static auto WithFont(HFONT font, Use use)
{
    const HDC context = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(context, font);
    auto result = use(context);
    SelectObject(context, before);
    DeleteDC(context);
    return result;
}

int OnScreen(int pixels)
{
    const int dpi = 96 * GetSystemMetrics(SM_CXSCREEN) / widthAt96;
    return (pixels * dpi + 48) / 96;
}

ScreenFont::ScreenFont(LONG weight, LONG extraHeight)
{
    LOGFONTW description = {};
    description.lfHeight = -OnScreen(points * 96 / 72) + extraHeight;
    description.lfWeight = weight;
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfQuality = CLEARTYPE_QUALITY;
    const wchar_t* face = L"DejaVu Sans Condensed";
    lstrcpynW(description.lfFaceName, HasFace(face) ? face : L"Tahoma", LF_FACESIZE);
    font = CreateFontIndirectW(&description);
}

ScreenFont::~ScreenFont()
{
    DeleteObject(font);
}

int ScreenFont::LineHeight() const
{
    return WithFont(font, [](HDC context) {
        TEXTMETRICW metrics = {};
        GetTextMetricsW(context, &metrics);
        return static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading);
    });
}

SIZE ScreenFont::SizeOf(const std::wstring& text) const
{
    return WithFont(font, [&](HDC context) {
        SIZE size = {};
        GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
        return size;
    });
}

RECT ScreenFont::Layout(const std::wstring& text, RECT area, UINT format) const
{
    return WithFont(font, [&](HDC context) {
        DrawTextW(context, text.c_str(), -1, &area, format | DT_CALCRECT);
        return area;
    });
}

Picture ScreenFont::Draw(SIZE picture, COLORREF background, COLORREF colour, const std::wstring& text,
                         RECT area, UINT format) const
{
    return Picture::Painted(picture, [&](HDC context) {
        const RECT all = {0, 0, picture.cx, picture.cy};
        const HBRUSH brush = CreateSolidBrush(background);
        FillRect(context, &all, brush);
        DeleteObject(brush);
        const HGDIOBJ before = SelectObject(context, font);
        SetTextColor(context, colour);
        SetBkMode(context, TRANSPARENT);
        const bool drawn = DrawTextW(context, text.c_str(), -1, &area, format) != 0;
        SelectObject(context, before);
        return drawn;
    });
}

// A text on a part of a row. The part, and where the text is laid out in it, are in pixels of the row.
static bool RowShows(HWND list, int row, const std::wstring& text, const ScreenFont& font, UINT format,
                     const std::function<RECT(int width)>& part, std::chrono::milliseconds timeout)
{
    return rig::WaitFor(
        [&] {
            const auto bounds = rig::ListRowOnScreen(list, row);
            if (!bounds) {
                return false;
            }
            const bool selected = rig::ListMark(list) == row;
            const RECT place = part(bounds->right - bounds->left);
            // A separator line is below each row.
            const SIZE size = {place.right - place.left, bounds->bottom - bounds->top - OnScreen(1)};
            const Picture expected = font.Draw(
                size, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW),
                GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT), text,
                {0, 0, size.cx + (format & DT_RIGHT ? 0 : OnScreen(100)), bounds->bottom - bounds->top},
                format);
            return Picture::OfScreen({bounds->left + place.left, bounds->top, bounds->left + place.right,
                                      bounds->top + size.cy}) == expected;
        },
        timeout);
}

bool RowShowsName(HWND list, int row, const std::wstring& name, const ScreenFont& font,
                  std::chrono::milliseconds timeout)
{
    const auto part = [&](int) {
        const LONG left = OnScreen(8) + OnScreen(16);
        // Not up to the heap figure to the right of the name.
        return RECT{left, 0, left + font.SizeOf(name).cx + OnScreen(8), 0};
    };
    return RowShows(list, row, name, font, rowText | DT_LEFT, part, timeout);
}

bool RowShowsName(HWND list, int row, const std::wstring& name, std::chrono::milliseconds timeout)
{
    return RowShowsName(list, row, name, ScreenFont(FW_BOLD, 0), timeout);
}

bool RowShowsSize(HWND list, int row, const std::wstring& size, const ScreenFont& font, int rightMargin,
                  std::chrono::milliseconds timeout)
{
    const auto part = [&](int width) {
        const LONG right = width - OnScreen(rightMargin);
        return RECT{right - font.SizeOf(size).cx - OnScreen(2), 0, right, 0};
    };
    return RowShows(list, row, size, font, rowText | DT_RIGHT, part, timeout);
}

bool NoticeSays(HWND mainWindow, HWND notice, const std::wstring& text)
{
    const ScreenFont font(FW_NORMAL, 0);
    const int lineGap = font.LineHeight() + 1;
    const int digit = font.SizeOf(L"0").cx;
    const RECT client = rig::ClientRectOnScreen(mainWindow);
    const RECT area = font.Layout(text,
                                  {digit, lineGap / 2, MulDiv(client.right - client.left, 70, 100) - digit,
                                   MulDiv(client.bottom - client.top, 70, 100) - lineGap / 2},
                                  DT_WORDBREAK);
    const SIZE size = {area.right + digit / 2, area.bottom + lineGap / 2};
    const Picture whole = font.Draw(size, GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_HIGHLIGHTTEXT),
                                    text, area, DT_WORDBREAK);
    return rig::WaitFor(
        [&] {
            const RECT place = rig::ScreenRectOf(notice);
            if (place.right - place.left != size.cx || place.bottom - place.top != size.cy) {
                return false;
            }
            const Picture shown = Picture::OfScreen(place);
            // Within the frame.
            for (int y = 1; y < size.cy - 1; y++) {
                for (int x = 1; x < size.cx - 1; x++) {
                    if (shown.At(x, y) != whole.At(x, y)) {
                        return false;
                    }
                }
            }
            return true;
        },
        std::chrono::seconds(2)); // it is gone after three
}
