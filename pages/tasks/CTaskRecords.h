// The records of the running applications, and what their icons and figures are taken from.
#pragma once

#include "framework/CRecords.h"
#include "pages/tasks/CTaskProcesses.h"
#include "pages/tasks/STaskInfo.h"

class CStartPrograms;

class CTaskRecords : public CRecords<STaskInfo>
{
    CStartPrograms& programs; // the Start menu's
    CTaskProcesses processes;

  public:
    explicit CTaskRecords(CStartPrograms& startPrograms) : CRecords(initialTasks), programs(startPrograms) {}

    CStartPrograms& Programs() const { return programs; }
    CTaskProcesses& Processes() { return processes; }

    // Every refresh begins with it.
    void Clear()
    {
        CRecords::Clear();
        processes.Forget();
    }

  private:
    static constexpr uint32_t initialTasks = 10;
};
