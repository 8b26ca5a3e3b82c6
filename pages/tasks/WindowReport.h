// The plain-text report on a window.
#pragma once

#include "framework/CStr.h"

// Appends the report on an existing window: program, names, owners, styles, place. A window that goes
// meanwhile gives empty names and "No" answers.
void AppendWindowReport(CStr& report, HWND window);
// One line for each style bit that is set, in the report's fixed order.
void AppendStyleNames(CStr& report, uint32_t style);
void AppendExtendedStyleNames(CStr& report, uint32_t extendedStyle);
