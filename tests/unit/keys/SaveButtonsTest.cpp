// Writing the device's hardware buttons: which values, when, and who has the button then.
#include "app/CApp.h"
#include "keys/CHardwareKeys.h"
#include "tests/support/ScriptedButtons.h"
#include "tests/support/ScriptedClaims.h"

#include <gtest/gtest.h>

using Writes = std::vector<std::wstring>;
using Calls = std::vector<std::string>;

static DWORD WINAPI GiveProgramPath(HMODULE, wchar_t* path, DWORD)
{
    wcscpy(path, L"\\Program Files\\Quorvane\\Quorvane.exe");
    return 36;
}

class SaveButtonsTest : public testing::Test
{
  protected:
    ImportHook modulePath{"GetModuleFileNameW", GiveProgramPath};
    CApp app;
    ScriptedButtons buttons;
    ScriptedClaims claims;
    CHardwareKeys keys;

    static inline const std::wstring own = L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 3*9";
    static inline const Calls reclaimed = {"load coredll.dll", "find UnregisterFunc1", "drop 8 193",
                                           "claim 0 193 8 193", "free"};

    SHardwareKey& Load(const std::wstring& command)
    {
        buttons.WriteText(L"40C1", L"Default", command);
        keys.Load();
        EXPECT_EQ(keys.Count(), 1u);
        return keys.At(0);
    }

    void ExpectNothingWritten()
    {
        const ScriptedButtons::Values before = buttons.Read(L"40C1");
        EXPECT_TRUE(keys.Save());
        EXPECT_EQ(buttons.writes, Writes{});
        EXPECT_EQ(claims.calls, Calls{});
        EXPECT_EQ(buttons.Read(L"40C1"), before);
        EXPECT_EQ(buttons.openKeys, 0);
    }
};

TEST_F(SaveButtonsTest, ANewlyBoundButtonRunsTheProgram)
{
    buttons.WriteText(L"40C1", L"ResetCmd", L"calendar.exe");
    buttons.WriteNumber(L"40C1", L"ResetFlags", 4);
    buttons.WriteNumber(L"40C1", L"Flags", 4);
    buttons.WriteNumber(L"40C1", L"BtnWnd", 77);
    buttons.WriteText(L"40C1", L"WndCls", L"calendar");
    SHardwareKey& key = Load(L"calendar.exe");
    key.pressAction = 3;
    key.holdAction = 9;
    EXPECT_TRUE(keys.Save());
    EXPECT_EQ(buttons.writes, (Writes{L"40C1 Default", L"40C1 Flags", L"40C1 BtnWnd", L"40C1 WndCls"}));
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), own);
    EXPECT_EQ(buttons.Number(L"40C1", L"Flags"), 0);
    EXPECT_EQ(buttons.Number(L"40C1", L"BtnWnd"), 0);
    EXPECT_EQ(buttons.Read(L"40C1").at(L"WndCls"),
              (std::pair<DWORD, std::vector<unsigned char>>{REG_SZ, {0, 0}}));
    EXPECT_EQ(buttons.Text(L"40C1", L"ResetCmd"), L"calendar.exe");
    EXPECT_EQ(buttons.Number(L"40C1", L"ResetFlags"), 4);
    EXPECT_EQ(claims.calls, reclaimed);
    EXPECT_EQ(buttons.openKeys, 0);
    EXPECT_EQ(buttons.machineOpens, 0);
}

TEST_F(SaveButtonsTest, AnUnchangedButtonIsNotWritten)
{
    Load(own);
    ExpectNothingWritten();
}

TEST_F(SaveButtonsTest, ACommandThatDiffersInCaseOnlyIsUnchanged)
{
    Load(L"\"\\PROGRAM FILES\\quorvane\\Quorvane.EXE\" 193 3*9");
    ExpectNothingWritten();
}

TEST_F(SaveButtonsTest, AButtonThatIsLeftToAnotherProgramIsNotWritten)
{
    SHardwareKey& key = Load(L"calendar.exe");
    ExpectNothingWritten();
    key.holdAction = 9; // without a press it means nothing
    ExpectNothingWritten();
}

TEST_F(SaveButtonsTest, AButtonWithoutACommandThatIsLeftAloneIsNotWritten)
{
    buttons.Add(L"40C1");
    keys.Load();
    ExpectNothingWritten();
}

TEST_F(SaveButtonsTest, AButtonThatIsGivenBackGetsItsResetValues)
{
    buttons.WriteText(L"40C1", L"ResetCmd", L"calendar.exe");
    buttons.WriteNumber(L"40C1", L"ResetFlags", 4);
    buttons.WriteNumber(L"40C1", L"BtnWnd", 77);
    buttons.WriteText(L"40C1", L"WndCls", L"calendar");
    SHardwareKey& key = Load(own);
    key.pressAction = 0;
    EXPECT_TRUE(keys.Save());
    EXPECT_EQ(buttons.writes, (Writes{L"40C1 Default", L"40C1 Flags"}));
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), L"calendar.exe");
    EXPECT_EQ(buttons.Number(L"40C1", L"Flags"), 4);
    EXPECT_EQ(buttons.Number(L"40C1", L"BtnWnd"), 77);
    EXPECT_EQ(buttons.Text(L"40C1", L"WndCls"), L"calendar");
    EXPECT_EQ(claims.calls, reclaimed);
}

TEST_F(SaveButtonsTest, WithoutResetValuesAGivenBackButtonRunsNothing)
{
    buttons.WriteNumber(L"40C1", L"Flags", 9);
    Load(L"run Quorvane.exe\" 193 3*9").pressAction = 0;
    EXPECT_TRUE(keys.Save());
    EXPECT_EQ(buttons.Read(L"40C1").at(L"Default"),
              (std::pair<DWORD, std::vector<unsigned char>>{REG_SZ, {0, 0}}));
    EXPECT_EQ(buttons.Number(L"40C1", L"Flags"), 0);
    EXPECT_EQ(claims.calls, reclaimed);
}

TEST_F(SaveButtonsTest, ResetValuesOfAnotherTypeOrSizeAreAsGoodAsNone)
{
    const DWORD number = 4;
    for (const auto& [type, size] : {std::pair<DWORD, size_t>{REG_BINARY, 4},
                                     {REG_DWORD, 3},
                                     {REG_DWORD, 0},
                                     {REG_DWORD, 8},
                                     {REG_QWORD, 8},
                                     {REG_SZ, 4}}) {
        const DWORD data[] = {number, number};
        buttons.Write(L"40C1", L"ResetFlags", type, data, size);
        buttons.Write(L"40C1", L"ResetCmd", type == REG_SZ ? REG_EXPAND_SZ : type, L"abc", 8);
        buttons.WriteNumber(L"40C1", L"Flags", 9);
        Load(own).pressAction = 0;
        EXPECT_TRUE(keys.Save()) << type;
        EXPECT_EQ(buttons.Text(L"40C1", L"Default"), L"") << type;
        EXPECT_EQ(buttons.Number(L"40C1", L"Flags"), 0) << type << " " << size;
    }
}

TEST_F(SaveButtonsTest, ADefaultThatIsNoTextIsNotOurs)
{
    buttons.Write(L"40C1", L"Default", REG_EXPAND_SZ, own.c_str(), (own.size() + 1) * 2);
    keys.Load();
    ExpectNothingWritten();
    keys.At(0).pressAction = 3;
    keys.At(0).holdAction = 9;
    EXPECT_TRUE(keys.Save());
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), own);
}

TEST_F(SaveButtonsTest, TheRegistryOfNowDecidesNotWhatWasRead)
{
    SHardwareKey& key = Load(own);
    buttons.WriteText(L"40C1", L"Default", L"another.exe");
    EXPECT_TRUE(keys.Save());
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), own);
    key.pressAction = 0;
    buttons.WriteText(L"40C1", L"Default", L"another.exe");
    buttons.writes.clear();
    claims.calls.clear();
    ExpectNothingWritten();
}

TEST_F(SaveButtonsTest, AnEmptyApplicationIsWrittenAsNoAction)
{
    Load(L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 2*0");
    EXPECT_TRUE(keys.Save());
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 *0");
}

TEST_F(SaveButtonsTest, OnlyChangedButtonsAreWrittenInTheOrderOfTheirNames)
{
    buttons.WriteText(L"40C1", L"Name", L"c");
    buttons.WriteText(L"40C2", L"Name", L"a");
    buttons.WriteText(L"40C3", L"Name", L"b");
    keys.Load();
    ASSERT_EQ(keys.Count(), 3u);
    keys.At(0).pressAction = 3;
    keys.At(2).pressAction = 5;
    EXPECT_TRUE(keys.Save());
    ASSERT_EQ(buttons.writes.size(), 8u);
    EXPECT_EQ(buttons.writes[0], L"40C2 Default");
    EXPECT_EQ(buttons.writes[4], L"40C1 Default");
    EXPECT_EQ(buttons.Text(L"40C2", L"Default"), L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 194 3*0");
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 5*0");
    ASSERT_EQ(claims.calls.size(), 10u);
    EXPECT_EQ(claims.calls[3], "claim 0 194 8 194");
    EXPECT_EQ(claims.calls[8], "claim 0 193 8 193");
}

TEST_F(SaveButtonsTest, WithoutTheShellsKeyNothingIsSaved)
{
    Load(own).pressAction = 4;
    buttons.refused = {L""};
    EXPECT_FALSE(keys.Save());
    EXPECT_EQ(buttons.writes, Writes{});
    EXPECT_EQ(claims.calls, Calls{});
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), own);
}

TEST_F(SaveButtonsTest, SavingStopsAtAButtonThatCannotBeOpened)
{
    for (const wchar_t* name : {L"40C1", L"40C2", L"40C3"}) {
        buttons.Add(name);
    }
    keys.Load();
    ASSERT_EQ(keys.Count(), 3u);
    for (uint32_t i = 0; i < 3; i++) {
        keys.At(i).pressAction = 4;
    }
    buttons.refused = {L"40C2"};
    EXPECT_FALSE(keys.Save());
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 4*0");
    EXPECT_EQ(buttons.Read(L"40C2").size(), 0u);
    EXPECT_EQ(buttons.Read(L"40C3").size(), 0u);
    EXPECT_EQ(claims.calls, reclaimed);
    EXPECT_EQ(buttons.openKeys, 0);
}

TEST_F(SaveButtonsTest, AButtonThatHasGoneStopsItToo)
{
    Load(own).pressAction = 4;
    keys.At(0).key = L"40C9";
    EXPECT_FALSE(keys.Save());
    EXPECT_EQ(buttons.writes, Writes{});
}

TEST_F(SaveButtonsTest, GivingAButtonBackLeavesTheRegistryAsItWas)
{
    buttons.WriteText(L"40C1", L"ResetCmd", L"calendar.exe");
    buttons.WriteText(L"40C1", L"Default", L"calendar.exe");
    buttons.WriteNumber(L"40C1", L"ResetFlags", 4);
    buttons.WriteNumber(L"40C1", L"Flags", 4);
    buttons.WriteNumber(L"40C1", L"BtnWnd", 0);
    buttons.WriteText(L"40C1", L"WndCls", L"");
    const ScriptedButtons::Values before = buttons.Read(L"40C1");
    keys.Load();
    keys.At(0).pressAction = 2;
    keys.At(0).pressApplication = L"\\a.lnk";
    EXPECT_TRUE(keys.Save());
    EXPECT_NE(buttons.Read(L"40C1"), before);
    keys.Load();
    EXPECT_STREQ(keys.At(0).pressApplication.Buffer(), L"\\a.lnk");
    keys.At(0).pressAction = 0;
    EXPECT_TRUE(keys.Save());
    EXPECT_EQ(buttons.Read(L"40C1"), before);
}
