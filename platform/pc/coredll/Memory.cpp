// The state of memory and storage.
#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/MemoryFigures.h"

#include <windows.h>

using handheld::Amount;
using handheld::Saturated;

extern "C" void WINAPI ce_GlobalMemoryStatus(MEMORYSTATUS* status)
{
    MEMORYSTATUSEX real = {};
    real.dwLength = sizeof real;
    GlobalMemoryStatusEx(&real);
    const handheld::MemoryScript& script = handheld::ActiveProfile().memory;
    const Amount physical = handheld::ScriptedAmount(script.physical, {real.ullTotalPhys, real.ullAvailPhys});
    const Amount pageFile =
        handheld::ScriptedAmount(script.pageFile, {real.ullTotalPageFile, real.ullAvailPageFile});
    const Amount space =
        handheld::ScriptedAmount(script.virtualSpace, {real.ullTotalVirtual, real.ullAvailVirtual});
    *status = {sizeof *status,           handheld::LoadOf(physical), Saturated(physical.total),
               Saturated(physical.free), Saturated(pageFile.total),  Saturated(pageFile.free),
               Saturated(space.total),   Saturated(space.free)};
}

static void Give(ULARGE_INTEGER* output, ULONGLONG value)
{
    if (output) {
        output->QuadPart = value;
    }
}

// A failure leaves the outputs alone. A null path is the root.
extern "C" BOOL WINAPI ce_GetDiskFreeSpaceExW(const wchar_t* path, ULARGE_INTEGER* available,
                                              ULARGE_INTEGER* total, ULARGE_INTEGER* free)
{
    const wchar_t* const folder = path ? path : L"\\";
    if (const handheld::StorageScript* script = handheld::ActiveProfile().FindStorageScript(folder)) {
        if (script->fails) {
            SetLastError(ERROR_NOT_READY);
            return FALSE;
        }
        Give(available, script->free);
        Give(total, script->total);
        Give(free, script->free);
        return TRUE;
    }
    ULARGE_INTEGER real[3] = {};
    if (!GetDiskFreeSpaceExW(handheld::DevicePath(folder).c_str(), &real[0], &real[1], &real[2])) {
        return FALSE;
    }
    Give(available, real[0].QuadPart);
    Give(total, real[1].QuadPart);
    Give(free, real[2].QuadPart);
    return TRUE;
}
