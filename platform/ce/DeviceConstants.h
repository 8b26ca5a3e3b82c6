// Constants that Windows CE has with other values than the desktop. Included by Windows.h alone.
#pragma once

// The device marks the indices of system colours. Those that the program does not use are taken away, lest
// one is used without its mark.
#undef COLOR_SCROLLBAR
#undef COLOR_WINDOW
#undef COLOR_WINDOWFRAME
#undef COLOR_WINDOWTEXT
#undef COLOR_HIGHLIGHT
#undef COLOR_HIGHLIGHTTEXT
#undef COLOR_BACKGROUND
#undef COLOR_ACTIVECAPTION
#undef COLOR_INACTIVECAPTION
#undef COLOR_MENU
#undef COLOR_MENUTEXT
#undef COLOR_CAPTIONTEXT
#undef COLOR_ACTIVEBORDER
#undef COLOR_INACTIVEBORDER
#undef COLOR_APPWORKSPACE
#undef COLOR_BTNFACE
#undef COLOR_BTNSHADOW
#undef COLOR_GRAYTEXT
#undef COLOR_BTNTEXT
#undef COLOR_INACTIVECAPTIONTEXT
#undef COLOR_BTNHIGHLIGHT
#undef COLOR_3DDKSHADOW
#undef COLOR_3DLIGHT
#undef COLOR_INFOTEXT
#undef COLOR_INFOBK
#undef COLOR_HOTLIGHT
#undef COLOR_GRADIENTACTIVECAPTION
#undef COLOR_GRADIENTINACTIVECAPTION
#undef COLOR_MENUHILIGHT
#undef COLOR_MENUBAR
#undef COLOR_DESKTOP
#undef COLOR_3DFACE
#undef COLOR_3DSHADOW
#undef COLOR_3DHIGHLIGHT
#undef COLOR_3DHILIGHT
#undef COLOR_BTNHILIGHT
#define COLOR_SCROLLBAR (0 | 0x40000000)
#define COLOR_WINDOW (5 | 0x40000000)
#define COLOR_WINDOWFRAME (6 | 0x40000000)
#define COLOR_WINDOWTEXT (8 | 0x40000000)
#define COLOR_HIGHLIGHT (13 | 0x40000000)
#define COLOR_HIGHLIGHTTEXT (14 | 0x40000000)

// The orientation of the screen.
#undef DM_DISPLAYORIENTATION
#undef DMDO_DEFAULT
#undef DMDO_90
#undef DMDO_180
#undef DMDO_270
#define DM_DISPLAYORIENTATION 0x00800000
#define DM_DISPLAYQUERYORIENTATION 0x01000000
#define DMDO_0 0
#define DMDO_90 1
#define DMDO_180 2
#define DMDO_270 4

// Believed to differ as well; taken away until they are known.
#undef SW_RESTORE
#undef SW_MAXIMIZE
#undef SW_SHOWMAXIMIZED
#undef WS_MINIMIZEBOX
#undef WS_MAXIMIZEBOX
#undef WS_OVERLAPPEDWINDOW
#undef WS_TILEDWINDOW
