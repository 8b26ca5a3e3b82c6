// FatalBoxSession: the program behind its fatal report, started without its pictures.
#pragma once

#include "rig/ProgramCopy.h"
#include "tests/e2e/ShellSession.h"

class FatalBoxSession : public ShellSession
{
  protected:
    rig::ProgramCopy copy;
    HWND box = nullptr;

    void SetUp() override
    {
        ASSERT_TRUE(copy.Complete());
        ASSERT_TRUE(DeleteFileW(copy.Path(L"Quorvane.zrs").c_str()));
        StartProgram(L"", copy.Folder());
        box = program->WaitForDialog();
        ASSERT_TRUE(box);
    }

    // Before its folder.
    void TearDown() override { program.reset(); }
};
