// The measures that single-line rows and title strips have in common.
#pragma once

#include "platform/ce.h"

// Text height plus external leading of a font on the screen, in pixels.
int LineHeight(HFONT font);
// Height of a row with one line of bold text beside a small icon.
int SingleLineRowHeight(HFONT boldFont, int iconHeight);
// Height of the title strip above a page's list.
int TitleStripHeight(HFONT boldFont);
// The system font with another weight and extraHeight added to its (negative) height.
HFONT CreateSystemFont(LONG weight, LONG extraHeight, bool underlined = false);
