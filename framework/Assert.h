// The fatal assertion: one message box naming the method, the line and the reason, then the end of the
// process.
#pragma once

#include "platform/ce.h"

enum ErrorCode : uint32_t
{
    ErrorGeneric = 0,
    ErrorNotFound = 1,
    ErrorNoMemory = 2,
    ErrorInvalidValue = 3,
    ErrorBufferTooSmall = 4,
    ErrorOutOfRange = 5,
    ErrorUndefinedState = 6,
    ErrorNotInUse = 7,
    ErrorAlreadyInUse = 8
};

const uint32_t errorTextSize = 100; // characters, terminator included

// Copies the reason text of the code into the buffer (room for errorTextSize characters) and returns the
// buffer.
wchar_t* ErrorText(wchar_t* buffer, uint32_t code);

// The box and the end of the process. Inside the box (its loop runs the program's timers) a second call ends
// the process at once, without a second box.
[[noreturn]] void ReportFatal(const wchar_t* reason, const wchar_t* function, int line);
[[noreturn]] void ReportFatal(uint32_t code, const wchar_t* function, int line);

// function is the qualified name of the checking method, L"CStr::Append"; line is usually __LINE__.
inline void Assert(bool condition, uint32_t code, const wchar_t* function, int line)
{
    if (!condition) {
        ReportFatal(code, function, line);
    }
}

// The same with a reason of its own in place of a code's text.
inline void AssertText(bool condition, const wchar_t* reason, const wchar_t* function, int line)
{
    if (!condition) {
        ReportFatal(reason, function, line);
    }
}
