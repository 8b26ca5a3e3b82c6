// One program of the Start menu.
#pragma once

#include "framework/ArrayNames.h"
#include "framework/CArray.h"
#include "framework/CStr.h"

struct SAppsList
{
    CStr name;         // the shortcut's file name without folder and extension
    CStr path;         // full path of the shortcut file
    CStr target;       // what the shortcut starts, with quotes and arguments as the shell reports them
    int32_t icon = -1; // index in the system small-icon list; -1 until first asked for
};

QV_ARRAY_NAMES(SAppsList*, "struct SAppsList *");
