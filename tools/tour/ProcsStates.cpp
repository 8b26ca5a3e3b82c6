// The states of the processes.
#include "tools/tour/Tour.h"

#include "platform/pc/common/ActiveProfile.h"
#include "resources/ids.h"

#include <tlhelp32.h>

static bool IsHidden(const PROCESSENTRY32W& entry)
{
    const auto* script = handheld::ActiveProfile().FindProcessScript(entry.szExeFile);
    return script && script->hidden;
}

// The page lists the processes in the system's order, but for those that the profile hides. -1 when there is
// none of this name.
static int RowOfProcess(const wchar_t* name)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    int row = 0;
    BOOL more = Process32FirstW(snapshot, &entry);
    for (; more && lstrcmpiW(entry.szExeFile, name) != 0; more = Process32NextW(snapshot, &entry)) {
        row += IsHidden(entry) ? 0 : 1;
    }
    CloseHandle(snapshot);
    return more ? row : -1;
}

void Tour::SelectProcess(const wchar_t* name)
{
    SelectRow(procsPage, RowOfProcess(name));
}

void Tour::ShowProcs()
{
    GoToPage(procsPage, CMD_SHOW_PROCS);
    Keep("processes");
    ShowMenu("processes-menu");
    SelectProcess(L"winemine.exe");
    ShowDialog(CMD_PROCESS_DETAILS, "process-report", HasReport);
    ShowEnding();
}

void Tour::ShowEnding()
{
    SelectProcess(L"winemine.exe");
    program.Command(CMD_END_PROCESS);
    HWND box = WaitForBox(L"End winemine.exe?");
    Keep("end-question");
    Answer(box, IDNO);

    // The tour itself has no window that could be asked to close, and is spared at the last question.
    SelectProcess(L"tour.exe");
    program.Command(CMD_END_PROCESS);
    Answer(WaitForBox(L"End tour.exe?"), IDYES);
    box = WaitForBox(L"Process does not respond");
    Keep("end-no-answer");
    Answer(box, IDOK);
    box = WaitForBox(L"WARNING: ");
    Keep("end-warning");
    Answer(box, IDNO);
}
