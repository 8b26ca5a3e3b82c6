// PageScreen: the program on one of its pages, used as a user does.
#pragma once

#include "rig/Program.h"

#include <gtest/gtest.h>

#include <optional>

class PageScreen : public testing::Test
{
    static DWORD startedAt;
    int number;
    int showCommand;

    static void Start();
    static bool IsReady();

  protected:
    // One program for all tests of a suite; a test that ends it gets the next one a new one.
    static std::optional<rig::Program> program;
    HWND list = nullptr;

    PageScreen(int pageNumber, int command) : number(pageNumber), showCommand(command) {}

    static void TearDownTestSuite() { program.reset(); }
    void SetUp() override;
    void TearDown() override;

    static HWND Main() { return program->MainWindow(); }
    // The handheld's home screen, a task of its own.
    static HWND Today();

    // The program in front, with a fresh list.
    void Front() const;
    // No refresh comes by itself for some seconds: the one that follows the program's start is over, and the
    // periodic one has just begun its interval.
    void FrontWithoutRefreshes() const;

    // Moves the selection by keys; the program is in front.
    void Select(int row) const;
    // An item of the soft-key menu by keys: 1 is the first, separators do not count.
    void Choose(int item) const;
    // Gives a command and waits until it is carried out.
    void Do(int command) const;

    // The text that a command shows in the information dialog, which is closed again.
    std::wstring ReportBy(int command) const;
    static bool CloseDialog(HWND dialog, int command = IDOK);
    static HWND WaitForNotice();
    static void HideNotice();
};
