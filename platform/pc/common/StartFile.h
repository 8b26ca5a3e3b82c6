// Starting programs and documents, also by the shortcuts that lead to them.
#pragma once

#include <windows.h>

#include <string>

namespace handheld {

struct StartRequest
{
    std::wstring file; // of the device or of the PC
    std::wstring arguments = {};
    std::wstring folder = {};      // to start it in; may be empty
    const wchar_t* verb = nullptr; // only for documents
    HWND owner = nullptr;
    int show = SW_SHOW;
};

// Null or the process, which the caller closes: a document may open in a program that runs already. False,
// with the reason as the last error, when it cannot be started. Shows no box of its own.
bool StartFile(const StartRequest& request, HANDLE& process);

} // namespace handheld
