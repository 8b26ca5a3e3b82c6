// Starting what a shortcut leads to.
#pragma once

#include "framework/CStr.h"

// The shell opens the shortcut itself, so that its arguments count. A failure is not told.
void StartShortcut(const CStr& path);
