// The plain-text report on a process.
#include "pages/procs/ProcessReport.h"

#include "framework/ProcessFacts.h"
#include "framework/ReportText.h"

static constexpr DWORD snapshotFlags = TH32CS_SNAPMODULE | TH32CS_SNAPNOHEAPS;
static_assert(snapshotFlags == 0x40000008);

static void AppendVersion(CStr& report, DWORD version)
{
    report.AppendInt(HIWORD(version));
    report.Append(L".");
    report.AppendInt(LOWORD(version));
}

static void AppendModule(CStr& report, const MODULEENTRY32& module)
{
    AppendLabelled(report, L"Name: ", module.szModule);
    if (module.szExePath[0] != 0) {
        AppendLabelled(report, L"\r\nExePath: ", module.szExePath);
    }
    report.Append(L"\r\nGlobal usage count: ");
    report.AppendUint(module.GlblcntUsage);
    report.Append(L"\r\nProcess ref. count: ");
    report.AppendUint(module.ProccntUsage);
    AppendLabelledSize(report, L"\r\nSize of the module: ", module.modBaseSize);
    report.Append(L"\r\n\r\n");
}

static void AppendModules(CStr& report, DWORD processId)
{
    HANDLE snapshot = CreateToolhelp32Snapshot(snapshotFlags, processId);
    if (snapshot == INVALID_HANDLE_VALUE) {
        report.Append(L"Can't get modules info.");
        return;
    }
    MODULEENTRY32 module = {};
    module.dwSize = sizeof module;
    if (Module32First(snapshot, &module)) {
        do {
            AppendModule(report, module);
        } while (Module32Next(snapshot, &module));
    } else {
        report.Append(L"Module32First error.");
    }
    CloseToolhelp32Snapshot(snapshot);
}

void AppendProcessReport(CStr& report, const SProcInfo& process)
{
    CStr path;
    ProcessImagePath(process.id, path);
    AppendLabelled(report, L"Full name:\r\n", path);
    report.AppendFormat(L"\r\n\r\nProcess ID: 0x%08X", process.id);
    AppendLabelledSize(report, L"\r\nMemory usage: ", static_cast<int64_t>(process.heapBytes));
    report.Append(L"\r\nThread count: ");
    report.AppendInt(static_cast<int32_t>(process.threadCount));
    report.Append(L"\r\nRequired OS version: ");
    AppendVersion(report, GetProcessVersion(process.id));
    report.Append(L"\r\n\r\nLIST OF MODULES:\r\n\r\n");
    AppendModules(report, process.id);
}
