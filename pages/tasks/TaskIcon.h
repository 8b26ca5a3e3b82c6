// The icon of a task in the system small-icon list.
#pragma once

#include "platform/ce.h"

class CStartPrograms;

// The index that the shell gives a program without an icon of its own, as it does to every built-in
// application hosted by a common program.
inline constexpr int genericProgramIcon = 2;

struct STaskIcon
{
    int index;
    bool final; // the shell's own window: nothing further is asked about it
};

// Replaces the generic program icon by the one that the class of the task's window stands for; any other
// index stays.
STaskIcon TaskIconForClass(int shellIndex, const wchar_t* className, CStartPrograms& programs);
// The last rules: no icon becomes the generic one, and the phone program gets its own.
int TaskIconForPath(int index, const wchar_t* executablePath, CStartPrograms& programs);
