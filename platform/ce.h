// The platform as the program sees it: the window manager, GDI, files and registry of <windows.h>, and what
// Windows CE and the Windows Mobile shell add to it. The one platform header that the program's folders
// include.
#pragma once

#include "platform/ce/Windows.h"

#include "platform/ce/Aygshell.h"
#include "platform/ce/Ceshell.h"
#include "platform/ce/Imaging.h"
#include "platform/ce/Power.h"
#include "platform/ce/Storage.h"
#include "platform/ce/Toolhelp.h"

#include "platform/ce/Sizes.h"

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>
#include <wchar.h>

// The program's entry, called by the target's start-up code. commandLine is what stands behind the program's
// name, as GetCommandLineW gives it on a device. The result is the process's exit code.
int ProgramMain(HINSTANCE instance, HINSTANCE previousInstance, const wchar_t* commandLine, int showCommand);
