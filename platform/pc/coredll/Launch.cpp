// Starting programs for the program.
#include "platform/pc/common/StartFile.h"

#include <shellapi.h>

extern "C" BOOL WINAPI ce_ShellExecuteEx(SHELLEXECUTEINFOW* info)
{
    if (!info || info->cbSize != sizeof *info || !info->lpFile || !*info->lpFile) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    HANDLE process = nullptr;
    const bool done = handheld::StartFile({info->lpFile, info->lpParameters ? info->lpParameters : L"",
                                           info->lpDirectory ? info->lpDirectory : L"", info->lpVerb,
                                           info->hwnd, info->nShow},
                                          process);
    const DWORD error = GetLastError();
    if ((info->fMask & SEE_MASK_NOCLOSEPROCESS) != 0) {
        info->hProcess = process;
    } else if (process) {
        CloseHandle(process);
    }
    // Above 32: it has been started.
    info->hInstApp = reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(done ? 42 : SE_ERR_FNF));
    SetLastError(done ? ERROR_SUCCESS : error);
    return done;
}
