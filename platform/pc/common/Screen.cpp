// The handheld's screen, from the active profile and the way it is held.
#include "platform/pc/common/Screen.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/Orientation.h"

namespace handheld {

static constexpr int barHeightAt96 = 26;

// The face that has the widths of the device's font and a visible bold; Wine's own Tahoma has no bold at
// large sizes.
static constexpr wchar_t preferredFace[] = L"DejaVu Sans Condensed";
static constexpr wchar_t fallbackFace[] = L"Tahoma";

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

int Scaled(int n)
{
    return (n * ActiveProfile().dpi + 48) / 96;
}

int BarHeight()
{
    return Scaled(barHeightAt96);
}

RECT ScreenRect()
{
    const Profile& profile = ActiveProfile();
    const bool sideways = IsSideways(ScreenOrientation());
    return {0, 0, sideways ? profile.height : profile.width, sideways ? profile.width : profile.height};
}

RECT ProgramRect()
{
    RECT rect = ScreenRect();
    rect.top += BarHeight();
    return rect;
}

bool HasOwnDesktop()
{
    const RECT screen = ScreenRect();
    return GetSystemMetrics(SM_CXSCREEN) == screen.right && GetSystemMetrics(SM_CYSCREEN) == screen.bottom;
}

HFONT CreateScreenFont(int points, int weight)
{
    static const bool preferred = HasFace(preferredFace);
    LOGFONTW font = {};
    font.lfHeight = -MulDiv(points, ActiveProfile().dpi, 72);
    font.lfWeight = weight;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    lstrcpynW(font.lfFaceName, preferred ? preferredFace : fallbackFace, LF_FACESIZE);
    return CreateFontIndirectW(&font);
}

} // namespace handheld
