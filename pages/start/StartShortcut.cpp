// Starting what a shortcut leads to.
#include "pages/start/StartShortcut.h"

void StartShortcut(const CStr& path)
{
    SHELLEXECUTEINFOW start = {};
    start.cbSize = sizeof start;
    start.fMask = SEE_MASK_NOCLOSEPROCESS;
    start.lpFile = path;
    start.lpParameters = L"";
    start.nShow = SW_SHOW;
    if (ShellExecuteEx(&start) && start.hProcess != nullptr) {
        CloseHandle(start.hProcess);
    }
}
