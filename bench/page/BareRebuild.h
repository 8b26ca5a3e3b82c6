// The platform calls that listing the running applications cannot do without, and nothing else.
#pragma once

#include "platform/ce.h"

#include <vector>

// Makes the same calls in the same order as the page, keeps nothing but what is needed to list a task once
// and to ask a process once.
class BareRebuild
{
    HWND list; // the page's own control
    std::vector<HWND> tasks;
    std::vector<DWORD> processes;

  public:
    explicit BareRebuild(HWND taskList);

    void Run();
    size_t TaskCount() const { return tasks.size(); }

  private:
    static BOOL CALLBACK AskWindow(HWND window, LPARAM self);
    void AskTask(HWND window);
    void TellList() const;
};
