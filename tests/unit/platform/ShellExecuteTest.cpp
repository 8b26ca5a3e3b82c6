// Starting programs, links and documents through the coredll substitute.
#include "platform/ce.h"
#include "tests/unit/platform/LinkFile.h"

#include <gtest/gtest.h>

class ShellExecuteTest : public testing::Test
{
  protected:
    static constexpr const wchar_t* command = L"C:\\windows\\system32\\cmd.exe";

    TempFolder folder;
    SHELLEXECUTEINFOW info = {};

    // Waits for the program's end; false when it was not started.
    bool Run(const std::wstring& file, const wchar_t* parameters = L"")
    {
        info = {};
        info.cbSize = sizeof info;
        info.fMask = SEE_MASK_NOCLOSEPROCESS;
        info.lpFile = file.c_str();
        info.lpParameters = parameters;
        info.nShow = SW_SHOW;
        SetLastError(0);
        if (!ShellExecuteEx(&info)) {
            EXPECT_EQ(info.hProcess, nullptr);
            return false;
        }
        EXPECT_NE(info.hProcess, nullptr);
        EXPECT_EQ(WaitForSingleObject(info.hProcess, 30000), DWORD{WAIT_OBJECT_0});
        EXPECT_TRUE(GetExitCodeProcess(info.hProcess, &exitCode));
        CloseHandle(info.hProcess);
        return true;
    }

    void ExpectFailure(const std::wstring& file, DWORD error)
    {
        EXPECT_FALSE(Run(file));
        EXPECT_EQ(GetLastError(), error);
        EXPECT_LE(reinterpret_cast<INT_PTR>(info.hInstApp), 32);
    }

    DWORD exitCode = 0;
};

TEST_F(ShellExecuteTest, AProgramGetsItsParametersAndItsHandleIsGiven)
{
    ASSERT_TRUE(Run(command, L"/c exit 7"));
    EXPECT_EQ(exitCode, 7u);
    EXPECT_GT(reinterpret_cast<INT_PTR>(info.hInstApp), 32);
}

TEST_F(ShellExecuteTest, ATextLinkStartsItsTargetWithItsArguments)
{
    ASSERT_TRUE(Run(WriteTextLink(folder, L"a.lnk", "\"C:\\windows\\system32\\cmd.exe\" /c exit 8")));
    EXPECT_EQ(exitCode, 8u);
    ASSERT_TRUE(Run(WriteTextLink(folder, L"b.lnk", "C:\\windows\\system32\\cmd.exe /c exit 9")));
    EXPECT_EQ(exitCode, 9u);
}

TEST_F(ShellExecuteTest, ADevicePathIsBelowTheRoot)
{
    ASSERT_TRUE(Run(WriteTextLink(folder, L"a.lnk", "\"\\windows\\system32\\cmd.exe\" /c exit 10")));
    EXPECT_EQ(exitCode, 10u);
}

TEST_F(ShellExecuteTest, ATargetWithoutAPathIsSearched)
{
    ASSERT_TRUE(Run(WriteTextLink(folder, L"a.lnk", "cmd.exe /c exit 11")));
    EXPECT_EQ(exitCode, 11u);
}

TEST_F(ShellExecuteTest, AProgramWhosePathHasBlanksIsStarted)
{
    const std::wstring program = folder.Path(L"a b.exe");
    ASSERT_TRUE(CopyFileW(command, program.c_str(), FALSE));
    folder.WriteFile(L"a.exe", {'x'}); // what the PC takes the path for as far as its blank
    ASSERT_TRUE(Run(program, L"/c exit 12"));
    EXPECT_EQ(exitCode, 12u);
    const std::string narrow(program.begin(), program.end());
    ASSERT_TRUE(Run(WriteTextLink(folder, L"a.lnk", "\"" + narrow + "\" /c exit 13")));
    EXPECT_EQ(exitCode, 13u);
    ASSERT_TRUE(Run(WritePcLink(folder, L"b.lnk", program.c_str(), L"/c exit 14")));
    EXPECT_EQ(exitCode, 14u);
}

TEST_F(ShellExecuteTest, ALinkOfThePcStartsInItsFolder)
{
    folder.WriteFile(L"here", {});
    const std::wstring link =
        WritePcLink(folder, L"a.lnk", command, L"/c if exist here exit 15", folder.Folder().c_str());
    ASSERT_TRUE(Run(link));
    EXPECT_EQ(exitCode, 15u);
}

TEST_F(ShellExecuteTest, ALinkToALinkLeadsOn)
{
    const std::wstring inner = WriteTextLink(folder, L"inner.lnk", "cmd.exe /c exit");
    const std::string narrow(inner.begin(), inner.end());
    ASSERT_TRUE(Run(WriteTextLink(folder, L"outer.lnk", narrow + " 16")));
    EXPECT_EQ(exitCode, 16u);
}

TEST_F(ShellExecuteTest, LinksInACircleEnd)
{
    const std::wstring self = folder.Path(L"self.lnk");
    WriteTextLink(folder, L"self.lnk", std::string(self.begin(), self.end()));
    ExpectFailure(self, ERROR_TOO_MANY_LINKS);
    const std::wstring one = folder.Path(L"one.lnk");
    const std::wstring other = folder.Path(L"other.lnk");
    WriteTextLink(folder, L"one.lnk", std::string(other.begin(), other.end()));
    WriteTextLink(folder, L"other.lnk", std::string(one.begin(), one.end()));
    ExpectFailure(one, ERROR_TOO_MANY_LINKS);
}

TEST_F(ShellExecuteTest, WhatIsGoneIsNotStarted)
{
    ExpectFailure(folder.Path(L"none.exe"), ERROR_FILE_NOT_FOUND);
    ExpectFailure(folder.Path(L"none.lnk"), ERROR_FILE_NOT_FOUND);
    ExpectFailure(WriteTextLink(folder, L"a.lnk", "\\no such folder\\none.exe"), ERROR_FILE_NOT_FOUND);
    const std::wstring program = folder.WriteFile(L"gone.exe", {'M', 'Z'});
    const std::wstring link = WritePcLink(folder, L"b.lnk", program.c_str());
    ASSERT_TRUE(DeleteFileW(program.c_str()));
    ExpectFailure(link, ERROR_FILE_NOT_FOUND);
}

TEST_F(ShellExecuteTest, WhatIsNoLinkOrProgramIsNotStarted)
{
    ExpectFailure(folder.WriteFile(L"empty.lnk", {}), ERROR_BAD_FORMAT);
    ExpectFailure(folder.WriteFile(L"junk.lnk", std::vector<unsigned char>(1 << 20, 'x')), ERROR_BAD_FORMAT);
    EXPECT_FALSE(Run(folder.WriteFile(L"junk.exe", {'x'})));
    EXPECT_NE(GetLastError(), 0u);
    ExpectFailure(folder.WriteFile(L"document.qvnone", {'x'}), ERROR_NO_ASSOCIATION);
}

TEST_F(ShellExecuteTest, WithoutTheMaskNoHandleIsLeft)
{
    info.cbSize = sizeof info;
    info.lpFile = command;
    info.lpParameters = L"/c exit 0";
    EXPECT_TRUE(ShellExecuteEx(&info));
    EXPECT_EQ(info.hProcess, nullptr);
}

TEST_F(ShellExecuteTest, ARecordOfAnotherSizeIsRefused)
{
    info.lpFile = command;
    EXPECT_FALSE(ShellExecuteEx(&info));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});
    info.cbSize = sizeof info;
    info.lpFile = nullptr;
    EXPECT_FALSE(ShellExecuteEx(&info));
    EXPECT_FALSE(ShellExecuteEx(nullptr));
}
