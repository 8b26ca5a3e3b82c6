// What kind of device this is: its system version, platform name and screen resolution.
#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/Screen.h"

#include <windows.h>

static constexpr UINT getPlatformType = 257;
static constexpr DWORD windowsCe = 3;

extern "C" BOOL WINAPI ce_GetVersionExW(OSVERSIONINFOW* version)
{
    if (!version || version->dwOSVersionInfoSize < sizeof(OSVERSIONINFOW)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    version->dwMajorVersion = 5;
    version->dwMinorVersion = 1;
    version->dwBuildNumber = 195;
    version->dwPlatformId = windowsCe;
    version->szCSDVersion[0] = L'\0';
    return TRUE;
}

// The size of the platform's name is counted in characters, with its end.
extern "C" BOOL WINAPI ce_SystemParametersInfoW(UINT action, UINT size, void* buffer, UINT flags)
{
    if (action != getPlatformType) {
        return SystemParametersInfoW(action, size, buffer, flags);
    }
    const std::wstring& name = handheld::ActiveProfile().platformName;
    if (!buffer || size <= name.size()) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    lstrcpyW(static_cast<wchar_t*>(buffer), name.c_str());
    return TRUE;
}

extern "C" int WINAPI ce_GetDeviceCaps(HDC dc, int index)
{
    if (GetDeviceCaps(dc, TECHNOLOGY) == DT_RASDISPLAY) {
        switch (index) {
        case LOGPIXELSX:
        case LOGPIXELSY:
            return handheld::ActiveProfile().dpi;
        case HORZRES:
            return handheld::ScreenRect().right;
        case VERTRES:
            return handheld::ScreenRect().bottom;
        }
    }
    return GetDeviceCaps(dc, index);
}
