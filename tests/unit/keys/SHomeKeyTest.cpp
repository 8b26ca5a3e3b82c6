// What holding the Home key does, in the program's settings.
#include "keys/SHomeKey.h"
#include "tests/support/ScriptedSettings.h"
#include "tests/support/TestHeap.h"

#include <gtest/gtest.h>

#include <string>

class SHomeKeyTest : public testing::Test
{
  protected:
    ScriptedSettings settings;
    SHomeKey home;

    SHomeKeyTest()
    {
        home.command = 77;
        home.file = L"what was there before";
    }

    void ExpectLoaded(uint32_t command, const std::wstring& file)
    {
        home.Load();
        EXPECT_EQ(home.command, command);
        EXPECT_EQ(std::wstring(home.file), file);
    }
};

TEST_F(SHomeKeyTest, NothingIsBoundAtFirst)
{
    const SHomeKey fresh;
    EXPECT_EQ(fresh.command, 0u);
    EXPECT_STREQ(fresh.file.Buffer(), L"");
}

TEST_F(SHomeKeyTest, WithoutSettingsNothingIsBound)
{
    settings.refused = true;
    ExpectLoaded(0, L"");
}

TEST_F(SHomeKeyTest, WithoutValuesNothingIsBound)
{
    ExpectLoaded(0, L"");
}

TEST_F(SHomeKeyTest, EachValueIsReadByItself)
{
    settings.WriteCommand(7);
    ExpectLoaded(7, L"");
    settings.WriteFile(L"\\a b.lnk");
    ExpectLoaded(7, L"\\a b.lnk");
    settings.WriteCommand(0xFFFFFFFF);
    ExpectLoaded(0xFFFFFFFF, L"\\a b.lnk");
}

TEST_F(SHomeKeyTest, AFileWithoutACommandIsRead)
{
    settings.WriteFile(std::wstring(16000, L'x'));
    ExpectLoaded(0, std::wstring(16000, L'x'));
}

TEST_F(SHomeKeyTest, ValuesOfAnotherTypeOrSizeAreAsGoodAsNone)
{
    const DWORD numbers[] = {5, 5};
    for (const auto& [type, size] : {std::pair<DWORD, DWORD>{REG_DWORD, 3},
                                     {REG_DWORD, 8},
                                     {REG_DWORD, 0},
                                     {REG_BINARY, 4},
                                     {REG_SZ, 4},
                                     {REG_QWORD, 8}}) {
        settings.Write(L"HomeKeyCommand", type, numbers, size);
        ExpectLoaded(0, L"");
    }
    for (const DWORD type : {REG_BINARY, REG_EXPAND_SZ, REG_MULTI_SZ, REG_DWORD}) {
        settings.Write(L"HomeKeyFile", type, L"ab", 4);
        ExpectLoaded(0, L"");
    }
}

TEST_F(SHomeKeyTest, AFileOfAnOddNumberOfBytesHasAnEnd)
{
    settings.Write(L"HomeKeyFile", REG_SZ, "a\0b", 3);
    ExpectLoaded(0, L"ab");
}

TEST_F(SHomeKeyTest, WhatIsSavedIsLoaded)
{
    home.command = 2;
    home.file = L"\\Windows\\Start Menu\\Calculator.lnk";
    EXPECT_TRUE(home.Save());
    SHomeKey other;
    other.Load();
    EXPECT_EQ(other.command, 2u);
    EXPECT_STREQ(other.file.Buffer(), L"\\Windows\\Start Menu\\Calculator.lnk");
    home.command = 0;
    home.file.Empty();
    EXPECT_TRUE(home.Save());
    ExpectLoaded(0, L"");
    EXPECT_TRUE(settings.created.empty());
}

TEST_F(SHomeKeyTest, SettingsThatCannotBeMadeAreNotSaved)
{
    settings.refused = true;
    EXPECT_FALSE(home.Save());
    EXPECT_EQ(settings.created, std::vector<std::wstring>{L"Software\\Quorvane\\HomeKeySetting"});
}

TEST_F(SHomeKeyTest, LoadingLeavesNothingAllocated)
{
    settings.WriteFile(L"\\a b.lnk");
    home.Load();
    const size_t before = LiveBlocks();
    for (int i = 0; i < 100; i++) {
        home.Load();
    }
    EXPECT_EQ(LiveBlocks(), before);
}
