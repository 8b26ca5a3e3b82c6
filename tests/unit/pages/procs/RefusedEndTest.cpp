// Processes that are not ended at all, and the program's own.
#include "tests/unit/pages/procs/EndingTest.h"

class RefusedEndTest : public EndingTest
{
  protected:
    RefusedEndTest() { answers = {IDYES, IDYES, IDYES, IDYES}; }
};

TEST_F(RefusedEndTest, WhatTheSystemNeedsIsRefusedInAnyLetters)
{
    const wchar_t* const names[] = {L"NK.EXE",           L"nk.exe",      L"Nk.eXe",      L"filesys.exe",
                                    L"FILESYS.EXE",      L"device.exe",  L"Device.exe",  L"services.exe",
                                    L"SERVICES.exe",     L"gwes.exe",    L"GWES.EXE",    L"shell32.exe",
                                    L"Shell32.Exe",      L"repllog.exe", L"RepLLog.exe", L"connmgr.exe",
                                    L"ConnMgr.exe",      L"cprog.exe",   L"Cprog.Exe",   L"ConManClient2.exe",
                                    L"conmanclient2.exe"};
    for (const wchar_t* name : names) {
        word.name = name;
        EXPECT_TRUE(IsProtectedProcess(word.name)) << name;
        EXPECT_FALSE(End()) << name;
        EXPECT_EQ(calls, (Calls{L"notice It's forbidden to end this process!", L"for 3000"})) << name;
    }
}

TEST_F(RefusedEndTest, OnlyTheWholeNameIsRefused)
{
    answers.clear();
    for (const wchar_t* name :
         {L"xnk.exe", L"nk.exe ", L" nk.exe", L"nk.ex", L"nk", L"", L"gwes.exe.exe", L"\\Windows\\nk.exe",
          L"ConManClient.exe", L"ConManClient3.exe", L"shell.exe"}) {
        word.name = name;
        EXPECT_FALSE(IsProtectedProcess(word.name)) << name;
        EXPECT_TRUE(End()) << name;
        EXPECT_EQ(calls, Calls{Question(name)});
    }
}

TEST_F(RefusedEndTest, TheProgramItselfIsAskedToCloseWithoutAQuestion)
{
    for (const wchar_t* name : {L"Quorvane.exe", L"QUORVANE.EXE", L"quorvane.exe", L"qUORVANE.EXe"}) {
        word.name = name;
        EXPECT_FALSE(End()) << name;
        EXPECT_EQ(calls, Calls{Posted(main)}) << name;
    }
}

TEST_F(RefusedEndTest, ANameLikeTheProgramsIsAnothers)
{
    answers.clear();
    for (const wchar_t* name : {L"Quorvane.exe2", L"Quorvane", L"xQuorvane.exe"}) {
        word.name = name;
        EXPECT_TRUE(End()) << name;
        EXPECT_EQ(calls, Calls{Question(name)});
    }
}
