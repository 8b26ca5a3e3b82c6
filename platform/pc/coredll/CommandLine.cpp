// The command line as the device gives it to a program.
#include "platform/pc/common/CommandLine.h"

#include <windows.h>

extern "C" const wchar_t* WINAPI ce_GetCommandLineW()
{
    static const std::wstring tail = handheld::CommandTail(GetCommandLineW());
    return tail.c_str();
}
