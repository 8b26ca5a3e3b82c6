// Processes and their modules that exist only in a script: what the program asks about them is answered from
// it.
#pragma once

#include "tests/support/ImportHook.h"

#include "platform/ce.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

struct ScriptedModule
{
    std::wstring name;
    std::wstring path;
    DWORD globalCount = 0;
    DWORD processCount = 0;
    DWORD bytes = 0;
};

struct ScriptedProcess
{
    DWORD id = 0;
    std::wstring name;
    std::wstring path; // empty: it cannot be told
    DWORD threads = 1;
    DWORD version = 0; // of the system that it asks for
    std::vector<ScriptedModule> modules;
};

// One at a time. What it does not know, heaps and other processes' paths among it, goes to whoever was there
// before.
class ScriptedProcesses
{
  public:
    std::vector<ScriptedProcess> processes; // in the system's order
    bool givesProcesses = true;             // false: there is no snapshot of them
    bool givesModules = true;
    bool hasFirstProcess = true; // false: a snapshot of processes is there and cannot be read
    std::vector<std::pair<DWORD, DWORD>> snapshots; // flags and process id, those of heaps aside
    std::vector<DWORD> pathSizes;                   // the buffers' sizes, in characters
    int open = 0;                                   // snapshots not closed yet
    int closedAsHandles = 0;                        // those closed by CloseHandle
    bool badRequest = false; // an entry without its size, or a snapshot that is not open or of other things

    ScriptedProcesses();
    ~ScriptedProcesses();
    ScriptedProcesses(const ScriptedProcesses&) = delete;
    ScriptedProcesses& operator=(const ScriptedProcesses&) = delete;

    void Add(DWORD id, const std::wstring& name, const std::wstring& path = L"");
    // Null for a process that is not in the script.
    const ScriptedProcess* Find(DWORD id) const;

    // The function that this script took the place of.
    template <typename Function>
    Function* Former(size_t hook) const
    {
        return hooks[hook].Original<Function>();
    }

  private:
    ImportHook hooks[9];
};
