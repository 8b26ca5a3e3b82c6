// Snapshots of processes and modules.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/OwnHeap.h"
#include "tools/runner/bridges/ShownProcesses.h"

namespace runner {

namespace {

struct ModuleEntry
{
    Word size;
    Word module;
    Word process;
    Word globalUses;
    Word processUses;
    Word base;
    Word baseSize;
    Word handle;
    char16_t name[MAX_PATH];
    char16_t path[MAX_PATH];
    Word flags;
};
static_assert(sizeof(ModuleEntry) == 1076);

} // namespace

static std::wstring shownProcess;

void ShowOnlyProcess(const std::wstring& name)
{
    shownProcess = name;
}

static bool IsShown(const PROCESSENTRY32& process)
{
    return shownProcess.empty() || shownProcess == process.szExeFile;
}

using NextProcess = BOOL(WINAPI*)(HANDLE, PROCESSENTRY32*);
using NextModule = BOOL(WINAPI*)(HANDLE, MODULEENTRY32*);

static HANDLE ProcessSnapshotArgument(Call& call)
{
    return ObjectArgument<HANDLE>(call, 0, CookieKind::Snapshot);
}

// Both sides have it in the same form: there are no pointers in it.
static Word WalkProcesses(Call& call, NextProcess next)
{
    static_assert(sizeof(PROCESSENTRY32) == 564);
    const auto record = call.RecordAt<PROCESSENTRY32>(1);
    NeedSize(call, record.Get(&PROCESSENTRY32::dwSize), sizeof(PROCESSENTRY32));
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    const HANDLE snapshot = ProcessSnapshotArgument(call);
    BOOL result = next(snapshot, &entry);
    while (result && !IsShown(entry)) {
        result = Process32Next(snapshot, &entry);
    }
    if (result) {
        record.SetAll(entry);
    }
    return static_cast<Word>(result);
}

static Word DoProcessFirst(Call& call)
{
    return WalkProcesses(call, Process32First);
}

static Word DoProcessNext(Call& call)
{
    return WalkProcesses(call, Process32Next);
}

static Word WalkModules(Call& call, NextModule next)
{
    const auto record = call.RecordAt<ModuleEntry>(1);
    NeedSize(call, record.Get(&ModuleEntry::size), sizeof(ModuleEntry));
    MODULEENTRY32 module = {};
    module.dwSize = sizeof(module);
    const BOOL result = next(ProcessSnapshotArgument(call), &module);
    if (result) {
        ModuleEntry entry = {};
        entry.size = sizeof(entry);
        entry.module = module.th32ModuleID;
        entry.process = module.th32ProcessID;
        entry.globalUses = module.GlblcntUsage;
        entry.processUses = module.ProccntUsage;
        entry.base = WordOf(module.modBaseAddr);
        entry.baseSize = module.modBaseSize;
        entry.handle = WordOf(module.hModule);
        std::memcpy(entry.name, module.szModule, sizeof entry.name);
        std::memcpy(entry.path, module.szExePath, sizeof entry.path);
        entry.flags = module.dwFlags;
        record.SetAll(entry);
    }
    return static_cast<Word>(result);
}

static Word DoModuleFirst(Call& call)
{
    return WalkModules(call, Module32First);
}

static Word DoModuleNext(Call& call)
{
    return WalkModules(call, Module32Next);
}

static Word DoCreateSnapshot(Call& call)
{
    const Word flags = call.Argument(0);
    const Word process = call.Argument(1);
    const HANDLE snapshot = CreateToolhelp32Snapshot(flags, process);
    const Word cookie = CookieOf(call, CookieKind::Snapshot, snapshot);
    if (snapshot != INVALID_HANDLE_VALUE && OwnHeap::IsMeant(flags, process)) {
        OwnHeap::Instance().Open(cookie);
    }
    return cookie;
}

static Word DoCloseSnapshot(Call& call)
{
    const BOOL closed = CloseToolhelp32Snapshot(ProcessSnapshotArgument(call));
    OwnHeap::Instance().Close(call.Argument(0));
    call.guest.cookies.Forget(CookieKind::Snapshot, call.Argument(0));
    return static_cast<Word>(closed);
}

static constexpr Bridge toolhelpRows[] = {
    {"CloseToolhelp32Snapshot", DoCloseSnapshot},
    {"CreateToolhelp32Snapshot", DoCreateSnapshot},
    {"Module32First", DoModuleFirst},
    {"Module32Next", DoModuleNext},
    {"Process32First", DoProcessFirst},
    {"Process32Next", DoProcessNext},
};

Bridges ToolhelpBridges()
{
    return toolhelpRows;
}

} // namespace runner
