// The strip above a page's list: its title between two arrows that lead to the neighbouring pages.
#pragma once

#include "platform/ce.h"

class CLB_Base;

// Which part of the strip a tap hits.
enum class StripZone
{
    PreviousPage,
    Title,
    NextPage
};

// Draws the strip into the top of client, height pixels tall. It has the list's background.
void DrawTitleStrip(HDC target, const RECT& client, int height, const wchar_t* title, HFONT boldFont,
                    const CLB_Base& list);
// x in client coordinates.
StripZone TitleStripZone(int x, const RECT& client, int height);
// Shows the pages' pop-up menu at a client point of window; ownCommand's entry is greyed. 0 when dismissed.
uint32_t TrackTitleStripMenu(HWND window, POINT point, uint32_t ownCommand);
