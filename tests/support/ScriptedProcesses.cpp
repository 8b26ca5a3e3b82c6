// Processes and their modules that exist only in a script.
#include "tests/support/ScriptedProcesses.h"

#include <algorithm>

static ScriptedProcesses* scriptedProcesses;
static const auto processSnapshot = reinterpret_cast<HANDLE>(0x6B6B0);
static const auto moduleSnapshot = reinterpret_cast<HANDLE>(0x7C7C0);
static std::vector<HANDLE> openSnapshots;
static DWORD moduleOwner; // of the snapshot of modules
static size_t nextProcess;
static size_t nextModule;

enum Hook : size_t
{
    TakeHook,
    CloseHook,
    FirstProcessHook,
    NextProcessHook,
    FirstModuleHook,
    NextModuleHook,
    PathHook,
    VersionHook,
    CloseHandleHook
};

static void Copy(const std::wstring& text, wchar_t* buffer, size_t size)
{
    const size_t length = std::min(text.size(), size - 1);
    wmemcpy(buffer, text.c_str(), length);
    buffer[length] = 0;
}

static bool IsOpen(HANDLE snapshot)
{
    return std::find(openSnapshots.begin(), openSnapshots.end(), snapshot) != openSnapshots.end();
}

static void Forget(HANDLE snapshot)
{
    openSnapshots.erase(std::find(openSnapshots.begin(), openSnapshots.end(), snapshot));
    scriptedProcesses->open--;
}

static HANDLE WINAPI TakeSnapshot(DWORD flags, DWORD processId)
{
    if (flags & TH32CS_SNAPHEAPLIST) {
        return scriptedProcesses->Former<decltype(TakeSnapshot)>(TakeHook)(flags, processId);
    }
    scriptedProcesses->snapshots.emplace_back(flags, processId);
    const bool ofModules = (flags & TH32CS_SNAPMODULE) != 0;
    if (!(ofModules ? scriptedProcesses->givesModules : scriptedProcesses->givesProcesses)) {
        return INVALID_HANDLE_VALUE;
    }
    moduleOwner = ofModules ? processId : moduleOwner;
    openSnapshots.push_back(ofModules ? moduleSnapshot : processSnapshot);
    scriptedProcesses->open++;
    return openSnapshots.back();
}

static BOOL WINAPI CloseSnapshot(HANDLE snapshot)
{
    if (snapshot != processSnapshot && snapshot != moduleSnapshot) {
        return scriptedProcesses->Former<decltype(CloseSnapshot)>(CloseHook)(snapshot);
    }
    if (!IsOpen(snapshot)) {
        scriptedProcesses->badRequest = true;
        return FALSE;
    }
    Forget(snapshot);
    return TRUE;
}

static BOOL WINAPI CloseAnyHandle(HANDLE handle)
{
    if (!IsOpen(handle)) {
        return scriptedProcesses->Former<decltype(CloseAnyHandle)>(CloseHandleHook)(handle);
    }
    Forget(handle);
    scriptedProcesses->closedAsHandles++;
    return TRUE;
}

static BOOL WINAPI GiveProcess(HANDLE snapshot, PROCESSENTRY32* entry)
{
    scriptedProcesses->badRequest |=
        snapshot != processSnapshot || !IsOpen(snapshot) || entry->dwSize != sizeof(PROCESSENTRY32);
    if (nextProcess >= scriptedProcesses->processes.size()) {
        return FALSE;
    }
    const ScriptedProcess& process = scriptedProcesses->processes[nextProcess++];
    entry->th32ProcessID = process.id;
    entry->cntThreads = process.threads;
    Copy(process.name, entry->szExeFile, MAX_PATH);
    return TRUE;
}

static BOOL WINAPI FirstProcess(HANDLE snapshot, PROCESSENTRY32* entry)
{
    nextProcess = scriptedProcesses->hasFirstProcess ? 0 : scriptedProcesses->processes.size();
    return GiveProcess(snapshot, entry);
}

static BOOL WINAPI GiveModule(HANDLE snapshot, MODULEENTRY32* entry)
{
    scriptedProcesses->badRequest |=
        snapshot != moduleSnapshot || !IsOpen(snapshot) || entry->dwSize != sizeof(MODULEENTRY32);
    const ScriptedProcess* process = scriptedProcesses->Find(moduleOwner);
    if (!process || nextModule >= process->modules.size()) {
        return FALSE;
    }
    const ScriptedModule& module = process->modules[nextModule++];
    entry->GlblcntUsage = module.globalCount;
    entry->ProccntUsage = module.processCount;
    entry->modBaseSize = module.bytes;
    Copy(module.name, entry->szModule, MAX_PATH);
    Copy(module.path, entry->szExePath, MAX_PATH);
    return TRUE;
}

static BOOL WINAPI FirstModule(HANDLE snapshot, MODULEENTRY32* entry)
{
    nextModule = 0;
    return GiveModule(snapshot, entry);
}

static DWORD WINAPI GivePath(HMODULE module, wchar_t* buffer, DWORD size)
{
    const ScriptedProcess* process =
        scriptedProcesses->Find(static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(module)));
    if (!process) {
        return scriptedProcesses->Former<decltype(GivePath)>(PathHook)(module, buffer, size);
    }
    scriptedProcesses->pathSizes.push_back(size);
    if (process->path.empty()) {
        return 0;
    }
    Copy(process->path, buffer, size);
    return static_cast<DWORD>(process->path.size());
}

static DWORD WINAPI GiveVersion(DWORD processId)
{
    const ScriptedProcess* process = scriptedProcesses->Find(processId);
    return process ? process->version : 0;
}

ScriptedProcesses::ScriptedProcesses()
    : hooks{{"CreateToolhelp32Snapshot", TakeSnapshot},
            {"CloseToolhelp32Snapshot", CloseSnapshot},
            {"Process32First", FirstProcess},
            {"Process32Next", GiveProcess},
            {"Module32First", FirstModule},
            {"Module32Next", GiveModule},
            {"GetModuleFileNameW", GivePath},
            {"GetProcessVersion", GiveVersion},
            {"CloseHandle", CloseAnyHandle}}
{
    scriptedProcesses = this;
    openSnapshots.clear();
}

ScriptedProcesses::~ScriptedProcesses()
{
    scriptedProcesses = nullptr;
}

void ScriptedProcesses::Add(DWORD id, const std::wstring& name, const std::wstring& path)
{
    processes.push_back({id, name, path, 1, 0, {}});
}

const ScriptedProcess* ScriptedProcesses::Find(DWORD id) const
{
    const auto found = std::find_if(processes.begin(), processes.end(),
                                    [&](const ScriptedProcess& each) { return each.id == id; });
    return found == processes.end() ? nullptr : &*found;
}
