// What a hardware button starts, as the registry says.
#include "platform/pc/common/ButtonCommand.h"

#include "tests/support/TempFolder.h"
#include "tests/unit/platform/OwnMachine.h"

#include <gtest/gtest.h>

using handheld::ButtonCommand;
using handheld::ButtonStart;
using handheld::SplitButtonCommand;

class ButtonCommandTest : public testing::Test
{
  protected:
    const OwnMachine machine;
    const TempFolder folder;

    std::wstring AfterWriting(DWORD type, const void* data, DWORD size) const
    {
        machine.Write(handheld::ButtonKey(0xC1), L"Default", type, data, size);
        return ButtonCommand(0xC1);
    }
    static void ExpectSplit(const std::wstring& command, const std::wstring& file,
                            const std::wstring& arguments)
    {
        const ButtonStart start = SplitButtonCommand(command);
        EXPECT_EQ(start.file, file);
        EXPECT_EQ(start.arguments, arguments);
    }
};

TEST_F(ButtonCommandTest, AButtonsKeyHasItsCodeInItsName)
{
    EXPECT_EQ(handheld::ButtonKey(0xC1), L"Software\\Microsoft\\Shell\\Keys\\40C1");
    EXPECT_EQ(handheld::ButtonKey(0x5B), L"Software\\Microsoft\\Shell\\Keys\\405B");
}

TEST_F(ButtonCommandTest, TheTextIsReadWithOrWithoutItsZero)
{
    EXPECT_EQ(ButtonCommand(0xC1), L"") << "no key";
    EXPECT_EQ(AfterWriting(REG_SZ, L"a.exe 1", 16), L"a.exe 1");
    EXPECT_EQ(AfterWriting(REG_SZ, L"a.exe 1", 14), L"a.exe 1");
    EXPECT_EQ(AfterWriting(REG_SZ, L"a.exe\0junk", 22), L"a.exe");
    EXPECT_EQ(ButtonCommand(0xC2), L"") << "another button";
}

TEST_F(ButtonCommandTest, WhatIsNoTextIsNoCommand)
{
    const DWORD number = 0x41004200;
    EXPECT_EQ(AfterWriting(REG_DWORD, &number, 4), L"");
    EXPECT_EQ(AfterWriting(REG_BINARY, L"a.exe", 12), L"");
    EXPECT_EQ(AfterWriting(REG_SZ, nullptr, 0), L"");
}

TEST_F(ButtonCommandTest, AnOddSizeLosesItsHalfCharacter)
{
    EXPECT_EQ(AfterWriting(REG_SZ, L"abc", 5), L"ab");
    EXPECT_EQ(AfterWriting(REG_SZ, L"abc", 1), L"");
}

TEST_F(ButtonCommandTest, AVeryLongTextIsReadWhole)
{
    const std::wstring text(16000, L'x');
    EXPECT_EQ(AfterWriting(REG_SZ, text.c_str(), 32000), text);
}

TEST_F(ButtonCommandTest, AQuotedProgramEndsAtItsQuote)
{
    ExpectSplit(L"\"\\Program Files\\a b.exe\" 193 3*9", L"\\Program Files\\a b.exe", L"193 3*9");
    ExpectSplit(L"\"\\a.exe\"", L"\\a.exe", L"");
    ExpectSplit(L"  \"\\a.exe\"x  ", L"\\a.exe", L"x");
    ExpectSplit(L"\"\\a b.exe", L"\\a b.exe", L"");
    ExpectSplit(L"\"", L"", L"");
    ExpectSplit(L"\"\" 1", L"", L"1");
}

TEST_F(ButtonCommandTest, AnUnquotedProgramEndsAtTheFirstBlankBeforeWhichThereIsAFile)
{
    const std::wstring spaced = folder.Path(L"a b.exe");
    ExpectSplit(spaced + L" c d", folder.Path(L"a"), L"b.exe c d");
    folder.WriteFile(L"a b.exe", {});
    ExpectSplit(spaced + L" c d", spaced, L"c d");
    ExpectSplit(spaced, spaced, L"");
    folder.MakeFolder(L"a");
    ExpectSplit(spaced + L" c d", spaced, L"c d");
    folder.WriteFile(L"z", {});
    ExpectSplit(folder.Path(L"z") + L" b.exe", folder.Path(L"z"), L"b.exe");
}

TEST_F(ButtonCommandTest, NothingIsNoProgram)
{
    ExpectSplit(L"", L"", L"");
    ExpectSplit(L" \t ", L"", L"");
    ExpectSplit(L"word", L"word", L"");
}
