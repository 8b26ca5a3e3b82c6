// Ending a process: the question, its opening, and the request to close.
#include "tests/unit/pages/procs/EndingTest.h"

class EndProcessTest : public EndingTest
{};

TEST_F(EndProcessTest, AnyAnswerButYesDoesNothing)
{
    for (const int answer : {IDNO, IDCANCEL, IDOK, IDRETRY, 0, -1}) {
        answers = {answer};
        EXPECT_TRUE(End()) << answer;
        EXPECT_EQ(calls, Calls{Question(L"word.exe")}) << answer;
    }
}

TEST_F(EndProcessTest, TheQuestionNamesTheProcessAsItIs)
{
    for (const std::wstring& name : {std::wstring(L"%s%n.exe"), std::wstring(L"a & b.exe"), std::wstring(),
                                     std::wstring(L"Ключ.exe"), std::wstring(259, L'n')}) {
        word.name = name.c_str();
        EXPECT_TRUE(End());
        EXPECT_EQ(calls, Calls{Question(name)});
    }
}

TEST_F(EndProcessTest, AProcessThatClosesWhenAskedIsNotAskedAboutAgain)
{
    answers = {IDYES};
    exitCodes = {0};
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, UntilExitCode()) << "its handle stays open";
}

TEST_F(EndProcessTest, EveryWindowOfTheProcessIsAskedOnceAndNoOther)
{
    answers = {IDYES};
    exitCodes = {0};
    AddWindow(41);
    HWND first = AddWindow(42);
    AddWindow(4);
    AddWindow(0);
    HWND hidden = windows.Add({L"", L"W", nullptr, false, true, 0, 0, 42});
    HWND disabled = windows.Add({L"", L"W", nullptr, true, false, 0, 0, 42});
    HWND owned = windows.Add({L"", L"W", first, true, true, 0, 0x08000000, 42});
    AddWindow(43);
    HWND ownedByAnother = windows.Add({L"", L"W", page, true, true, 0, 0, 42});
    EXPECT_TRUE(End());
    EXPECT_EQ(calls,
              (Calls{Question(L"word.exe"), L"open 100001 42", L"snapshot 40000002 0", L"snapshot closed",
                     L"all windows", Posted(first), Posted(hidden), Posted(disabled), Posted(owned),
                     Posted(ownedByAnother), L"wait 2000", L"exit code"}));
}

TEST_F(EndProcessTest, AWindowThatGoesMeanwhileIsPassedOver)
{
    answers = {IDYES};
    exitCodes = {0};
    HWND gone = AddWindow(42);
    HWND there = AddWindow(42);
    windows.windows.erase(gone);
    EXPECT_TRUE(End());
    EXPECT_EQ(calls[5], Posted(there));
    EXPECT_EQ(calls[6], L"wait 2000");
}

TEST_F(EndProcessTest, AProcessThatCannotBeOpenedIsToldAbout)
{
    opens = false;
    AddWindow(42);
    const struct
    {
        HRESULT result;
        DWORD tiers;
        const wchar_t* notice;
    } policies[] = {
        {S_OK, 0, L"notice Tier 2 security of your device doesn't allow terminating processes."},
        {S_FALSE, 0, L"notice Tier 2 security of your device doesn't allow terminating processes."},
        {S_OK, 1, L"notice Can't end process"},
        {S_OK, 2, L"notice Can't end process"},
        {E_FAIL, 0, L"notice Can't end process"},
    };
    for (const auto& each : policies) {
        policyResult = each.result;
        tiers = each.tiers;
        answers = {IDYES};
        EXPECT_TRUE(End());
        EXPECT_EQ(calls, (Calls{Question(L"word.exe"), L"open 100001 42", L"policy 4123", each.notice,
                                L"for 3000"}));
    }
}

TEST_F(EndProcessTest, APolicyWithoutAValueIsNotTheTwoTiers)
{
    opens = false;
    givesTiers = false;
    answers = {IDYES};
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, (Calls{Question(L"word.exe"), L"open 100001 42", L"policy 4123",
                            L"notice Can't end process", L"for 3000"}));
}

TEST_F(EndProcessTest, AnIdThatAnotherProcessHasMeanwhileIsLeftAlone)
{
    AddWindow(42);
    answers = {IDYES};
    duringBox = [&](size_t) { system.processes[1].name = L"excel.exe"; };
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, (Calls{Question(L"word.exe"), L"open 100001 42", L"snapshot 40000002 0",
                            L"snapshot closed", L"close", L"notice Can't end process", L"for 3000"}));
}

TEST_F(EndProcessTest, AProcessThatLeftTheSnapshotMeanwhileIsAskedAllTheSame)
{
    answers = {IDYES};
    exitCodes = {0};
    system.processes.pop_back();
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, UntilExitCode());
}

TEST_F(EndProcessTest, WhenTheSystemCannotSayWhoHasTheIdNothingIsEnded)
{
    answers = {IDYES};
    system.givesProcesses = false;
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, (Calls{Question(L"word.exe"), L"open 100001 42", L"snapshot 40000002 0", L"close",
                            L"notice Can't end process", L"for 3000"}));
}

TEST_F(EndProcessTest, AnyExitCodeButTheOneOfRunningIsAnEnd)
{
    for (const DWORD code : {1u, 258u, 260u, 0xFFFFFFFFu, 0xC0000005u}) {
        answers = {IDYES};
        exitCodes = {code};
        EXPECT_TRUE(End());
        EXPECT_EQ(calls, UntilExitCode()) << code;
    }
}

TEST_F(EndProcessTest, AnExitCodeThatCannotBeHadIsAnEnd)
{
    answers = {IDYES};
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, UntilExitCode());
}
