// What the tests of the application picker start from: the picker, opened in the program over a Start menu
// that exists only in a script.
#pragma once

#include "dialogs/CDialogSelectApp.h"
#include "tests/support/ScriptedStartMenu.h"
#include "tests/ui/ProgramTest.h"

class PickerTest : public ProgramTest
{
  protected:
    struct Opened
    {
        ProgramApp& app;
        HWND dialog;
        HWND list;
    };

    ScriptedStartMenu menu;
    std::wstring chosen; // the caller's text afterwards; "before" before

    void AddPrograms(const std::vector<std::wstring>& names);
    // Opens the picker; the step runs inside its loop. One that leaves it open is followed by a cancel. The
    // result is the picker's.
    bool Open(const std::function<void(Opened&)>& step);

    static void Run(const Opened& opened, UINT command)
    {
        SendMessageW(opened.dialog, WM_COMMAND, command, 0);
    }
    static int Count(const Opened& opened);
    static void Select(const Opened& opened, int row);
};
