// The report on a window: its text, and the dialog that shows it.
#pragma once

#include "framework/CStr.h"

// Appends the report on an existing window: program, names, owners, styles, place. A window that goes
// meanwhile gives empty names and "No" answers.
void AppendWindowReport(CStr& report, HWND window);
// One line for each style bit that is set, in the report's fixed order.
void AppendStyleNames(CStr& report, uint32_t style);
void AppendExtendedStyleNames(CStr& report, uint32_t extendedStyle);

// The report on any window in the information dialog; a notice when the window has gone. Nothing for the
// all-ones handle, which stands for no window.
void ShowWindowReport(HWND window);
// Shows the notice for a window that has gone; false, and nothing shown, while it is there.
bool TellWhenGone(HWND window);
