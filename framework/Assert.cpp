// The fatal assertion.
#include "framework/Assert.h"

static const uint32_t reportSize = 300; // characters, terminator included

wchar_t* ErrorText(wchar_t* buffer, uint32_t code)
{
    static const wchar_t* const texts[] = {L"Error",           L"Not found",           L"Not enough memory",
                                           L"Invalid value",   L"Buffer is too small", L"Out of range",
                                           L"Undefined state", L"Not in use",          L"Already in use"};
    const wchar_t* text = L"Unknown reason";
    if (code < sizeof(texts) / sizeof(texts[0])) {
        text = texts[code];
    }
    memcpy(buffer, text, (wcslen(text) + 1) * sizeof(wchar_t));
    return buffer;
}

[[noreturn]] static void EndProcess()
{
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(-1));
    // On a device the call may return while the process is being taken down.
    for (;;) {
        Sleep(1000);
    }
}

// A report that does not fit is cut, so that even a hostile reason is shown.
static void FormatReport(wchar_t* buffer, const wchar_t* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    _vsnwprintf(buffer, reportSize - 1, format, arguments);
    va_end(arguments);
    buffer[reportSize - 1] = 0;
}

void ReportFatal(const wchar_t* reason, const wchar_t* function, int line)
{
    static bool reporting = false;
    if (reporting) {
        EndProcess();
    }
    reporting = true;

    wchar_t text[reportSize];
    FormatReport(text, L"Assertion failed in function: %s()\nLine: %d\n\nReason: %s", function, line, reason);
    MessageBoxW(nullptr, text, L"Fatal error", MB_OK | MB_ICONERROR);
    EndProcess();
}

void ReportFatal(uint32_t code, const wchar_t* function, int line)
{
    wchar_t reason[errorTextSize];
    ReportFatal(ErrorText(reason, code), function, line);
}
