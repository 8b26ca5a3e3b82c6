// The plain-text report on a shortcut.
#pragma once

#include "startmenu/SAppsList.h"

// Name, paths, and the file as it stands on the disk, up to its first zero byte.
void AppendShortcutReport(CStr& report, const SAppsList& program);
