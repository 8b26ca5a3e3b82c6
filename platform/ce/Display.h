// The display mode and its change as Windows CE has them: a shorter record than the desktop's, and other
// values for the orientation. Included by Windows.h alone, on every target: it holds no pointers.
#pragma once

#undef DEVMODEW
#define DEVMODEW DeviceModeW // the desktop's own name stays with what <windows.h> has already declared by it

struct DEVMODEW
{
    wchar_t dmDeviceName[32];
    WORD dmSpecVersion;
    WORD dmDriverVersion;
    WORD dmSize;
    WORD dmDriverExtra;
    DWORD dmFields;
    short dmOrientation; // of a printer's paper, as all up to dmCollate
    short dmPaperSize;
    short dmPaperLength;
    short dmPaperWidth;
    short dmScale;
    short dmCopies;
    short dmDefaultSource;
    short dmPrintQuality;
    short dmColor;
    short dmDuplex;
    short dmYResolution;
    short dmTTOption;
    short dmCollate;
    wchar_t dmFormName[32];
    WORD dmLogPixels;
    DWORD dmBitsPerPel;
    DWORD dmPelsWidth;
    DWORD dmPelsHeight;
    DWORD dmDisplayFlags;
    DWORD dmDisplayFrequency;
    DWORD dmDisplayOrientation; // of the screen: one of DMDO_0 to DMDO_270
};

#undef DEVMODE
#define DEVMODE DEVMODEW

#undef DM_DISPLAYORIENTATION
#undef DMDO_DEFAULT
#undef DMDO_90
#undef DMDO_180
#undef DMDO_270
#define DM_DISPLAYORIENTATION 0x00800000
#define DM_DISPLAYQUERYORIENTATION 0x01000000 // which turns the screen knows, as the sum of their values
#define DMDO_0 0
#define DMDO_90 1
#define DMDO_180 2
#define DMDO_270 4

// Exported without the W that <windows.h> adds. With CDS_TEST it answers instead of turning the screen.
#undef ChangeDisplaySettingsEx
extern "C" __declspec(dllimport) LONG WINAPI
    ChangeDisplaySettingsEx(const wchar_t* device, DEVMODEW* mode, HWND window, DWORD flags, void* parameter);
