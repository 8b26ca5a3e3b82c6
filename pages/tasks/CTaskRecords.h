// The records of the running applications, and what their icons are taken from.
#pragma once

#include "framework/CRecords.h"
#include "pages/tasks/STaskInfo.h"

class CStartPrograms;

class CTaskRecords : public CRecords<STaskInfo>
{
    CStartPrograms& programs; // the Start menu's

  public:
    explicit CTaskRecords(CStartPrograms& startPrograms) : CRecords(initialTasks), programs(startPrograms) {}

    CStartPrograms& Programs() const { return programs; }

  private:
    static constexpr uint32_t initialTasks = 10;
};
