// A hardware button: its code, and its command to and from the actions.
#include "keys/SHardwareKey.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>

static const wchar_t* programPath;

static DWORD WINAPI GiveProgramPath(HMODULE module, wchar_t* path, DWORD size)
{
    EXPECT_EQ(module, nullptr);
    EXPECT_EQ(size, 260u);
    wcsncpy(path, programPath, size);
    return static_cast<DWORD>(wcslen(programPath));
}

class SHardwareKeyTest : public testing::Test
{
  protected:
    ImportHook modulePath{"GetModuleFileNameW", GiveProgramPath};
    SHardwareKey key{L"40C1"};

    SHardwareKeyTest() { programPath = L"\\Program Files\\Quorvane\\Quorvane.exe"; }

    void Expect(int32_t vk, int32_t press, int32_t hold, const wchar_t* pressFile, const wchar_t* holdFile)
    {
        EXPECT_EQ(key.vk, vk);
        EXPECT_EQ(key.pressAction, press);
        EXPECT_EQ(key.holdAction, hold);
        EXPECT_STREQ(key.pressApplication.Buffer(), pressFile);
        EXPECT_STREQ(key.holdApplication.Buffer(), holdFile);
    }

    // A button that had no command before.
    void Read(const std::wstring& command)
    {
        key.~SHardwareKey();
        new (&key) SHardwareKey(L"40C1");
        key.SetCommand(command.c_str());
        EXPECT_STREQ(key.command.Buffer(), command.c_str());
    }

    std::wstring Command() const
    {
        CStr line(L"what was there before");
        key.MakeCommand(line);
        return line.Buffer();
    }
};

TEST_F(SHardwareKeyTest, ItsFieldsHaveTheirOrder)
{
    EXPECT_EQ(offsetof(SHardwareKey, key), 0u);
    EXPECT_EQ(offsetof(SHardwareKey, name), sizeof(CStr));
    EXPECT_EQ(offsetof(SHardwareKey, command), 2 * sizeof(CStr));
    EXPECT_EQ(offsetof(SHardwareKey, vk), 3 * sizeof(CStr));
    EXPECT_EQ(offsetof(SHardwareKey, pressAction), offsetof(SHardwareKey, vk) + 4);
    EXPECT_EQ(offsetof(SHardwareKey, holdAction), offsetof(SHardwareKey, vk) + 8);
    EXPECT_GT(offsetof(SHardwareKey, pressApplication), offsetof(SHardwareKey, holdAction));
    EXPECT_EQ(offsetof(SHardwareKey, holdApplication),
              offsetof(SHardwareKey, pressApplication) + sizeof(CStr));
    EXPECT_TRUE((std::is_same_v<decltype(SHardwareKey::vk), int32_t>)) << "signed";
    EXPECT_TRUE((std::is_same_v<decltype(SHardwareKey::pressAction), int32_t>));
    EXPECT_TRUE((std::is_same_v<decltype(SHardwareKey::holdAction), int32_t>));
}

TEST_F(SHardwareKeyTest, AButtonWithoutACommandHasItsKeysNameAndItsCode)
{
    EXPECT_STREQ(key.key.Buffer(), L"40C1");
    EXPECT_STREQ(key.name.Buffer(), L"40C1");
    EXPECT_STREQ(key.command.Buffer(), L"");
    Expect(193, 0, 0, L"", L"");
}

TEST_F(SHardwareKeyTest, TheCodeIsTheLastTwoOfFourCharacters)
{
    const std::pair<const wchar_t*, int32_t> keys[] = {
        {L"40C1", 0xC1}, {L"40c1", 0xC1}, {L"40C6", 0xC6}, {L"0001", 1},    {L"00FF", 0xFF},
        {L"00ff", 0xFF}, {L"4009", 9},    {L"4090", 0x90}, {L"40aA", 0xAA}, {L"40fF", 0xFF},
        {L"zzC1", 0xC1}, {L"0x10", 0x10}, {L"....", 0},    {L"4000", 0}};
    for (const auto& [name, code] : keys) {
        EXPECT_EQ(SHardwareKey(name).vk, code) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(SHardwareKeyTest, WhatIsNotHexadecimalIsNoCode)
{
    for (const wchar_t* name :
         {L"40G1", L"401G", L"40/1", L"401/", L"40:1", L"401:", L"40@1", L"401@", L"40`1", L"401`", L"40g1",
          L"40 1", L"401 ", L"40-1", L"40+1", L"400x", L"40x1", L"401\x141", L"40\xFF11"}) {
        EXPECT_EQ(SHardwareKey(name).vk, 0) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(SHardwareKeyTest, KeysOfOtherLengthsHaveNoCode)
{
    for (size_t length = 0; length <= 255; length++) {
        const std::wstring name(length, L'C');
        const SHardwareKey other(name.c_str());
        EXPECT_EQ(other.vk, length == 4 ? 0xCC : 0) << length;
        EXPECT_STREQ(other.name.Buffer(), name.c_str());
    }
}

TEST_F(SHardwareKeyTest, TheProgramsOwnCommandIsReadBack)
{
    Read(L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 3*\\Windows\\Start Menu\\Calculator.lnk");
    Expect(193, 3, 2, L"", L"\\Windows\\Start Menu\\Calculator.lnk");
}

TEST_F(SHardwareKeyTest, TheProgramIsKnownByItsFileNameInAnyCase)
{
    for (const wchar_t* program :
         {L"\"\\quorvane.exe\" ", L"\"\\QUORVANE.EXE\" ", L"\"\\a b\\QuorVane.Exe\" ", L"'quorvane.exe' ",
          L"\\notquorvane.exe\" ", L"run \"quorvane.exe\" "}) {
        Read(std::wstring(program) + L"200 4*5");
        Expect(200, 4, 5, L"", L"");
        EXPECT_TRUE(SHardwareKey::IsOwnCommand(program));
    }
}

TEST_F(SHardwareKeyTest, TheCommandOfAnotherProgramSaysNothing)
{
    for (const wchar_t* command :
         {L"", L"calc.exe", L"\"\\Windows\\calc.exe\" 200 4*5", L"200 4*5", L"quorvane", L"quorvane.ex",
          L"uorvane.exe 200 4*5", L"quorvane .exe\" 200 4*5", L"quorvane.com\" 200 4*5"}) {
        Read(command);
        Expect(193, 0, 0, L"", L"");
        EXPECT_FALSE(SHardwareKey::IsOwnCommand(command));
    }
}

TEST_F(SHardwareKeyTest, ACommandWithoutATailLeavesTheCodeOfTheKey)
{
    for (const wchar_t* command : {L"quorvane.exe", L"\"quorvane.exe\"", L"\"quorvane.exe\" ",
                                   L"\"quorvane.exe\"x", L"quorvane.exe 1"}) {
        Read(command);
        Expect(193, 0, 0, L"", L"");
    }
}

TEST_F(SHardwareKeyTest, TwoCharactersBehindTheProgramAreSkippedWhateverTheyAre)
{
    Read(L"\\Quorvane.exe 193 3*9");
    Expect(93, 3, 9, L"", L"");
    Read(L"\\Quorvane.exe\"  193 3*9");
    Expect(193, 3, 9, L"", L"");
    Read(L"\\Quorvane.exe.bak 193 3*9");
    Expect(0, 2, 9, L"193 3", L""); // "ak" is no code
}

TEST_F(SHardwareKeyTest, AMalformedTailIsNoButtonOfOurs)
{
    for (const wchar_t* tail : {L"193", L"193 3", L"193*3", L"*", L"3*9", L"x", L" ", L"    ", L"\t", L"193 ",
                                L"0x", L"193\t3*9"}) {
        Read(std::wstring(L"\"\\quorvane.exe\" ") + tail);
        Expect(0, 1, 1, L"", L"");
    }
    Read(L"\"\\quorvane.exe\" x 3*9");
    Expect(0, 3, 9, L"", L"");
    Read(L"\"\\quorvane.exe\" 0 3*9");
    Expect(0, 3, 9, L"", L"");
}

TEST_F(SHardwareKeyTest, OddTailsAreTakenAsTheyStand)
{
    Read(L"\"\\quorvane.exe\" -5 3*9");
    Expect(-5, 3, 9, L"", L"");
    Read(L"\"\\quorvane.exe\" 193 *");
    Expect(193, 1, 1, L"", L"");
    Read(L"\"\\quorvane.exe\" 193 2*0");
    Expect(193, 2, 0, L"", L"");
    Read(L"\"\\quorvane.exe\" 193 03*13");
    Expect(193, 3, 13, L"", L"");
    Read(L"\"\\quorvane.exe\" 193 3*9*8");
    Expect(193, 3, 2, L"", L"9*8");
    Read(L"\"\\a\\quorvane.exe\" 193 \\b\\quorvane.exe\" 1 4*5*6");
    Expect(193, 2, 2, L"\\b\\quorvane.exe\" 1 4", L"5*6");
}

TEST_F(SHardwareKeyTest, ACommandOf32KilobytesIsReadWhole)
{
    const std::wstring path(16000, L'p');
    Read(L"\"\\quorvane.exe\" 193 " + path + L"*" + path);
    Expect(193, 2, 2, path.c_str(), path.c_str());
    Read(std::wstring(16000, L'x'));
    Expect(193, 0, 0, L"", L"");
}

TEST_F(SHardwareKeyTest, TheCommandHasItsForm)
{
    key.pressAction = 3;
    key.holdAction = 2;
    key.holdApplication = L"\\Windows\\Start Menu\\Calculator.lnk";
    key.pressApplication = L"\\not asked for";
    EXPECT_EQ(Command(),
              L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 3*\\Windows\\Start Menu\\Calculator.lnk");
    key.pressAction = 2;
    key.holdAction = 11;
    EXPECT_EQ(Command(), L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 \\not asked for*11");
    key.pressAction = 12;
    key.holdAction = 0;
    EXPECT_EQ(Command(), L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 12*0");
}

TEST_F(SHardwareKeyTest, AnEmptyApplicationLeavesItsPlaceEmpty)
{
    key.pressAction = key.holdAction = 2;
    EXPECT_EQ(Command(), L"\"\\Program Files\\Quorvane\\Quorvane.exe\" 193 *");
}

TEST_F(SHardwareKeyTest, TheCommandHoldsLongPathsWhole)
{
    const std::wstring path(16000, L'p');
    const std::wstring program = std::wstring(258, L'q') + L"\\";
    programPath = program.c_str();
    key.pressAction = key.holdAction = 2;
    key.pressApplication = key.holdApplication = path.c_str();
    key.vk = -2147483647 - 1;
    EXPECT_EQ(Command(), L"\"" + program + L"\" -2147483648 " + path + L"*" + path);
}

TEST_F(SHardwareKeyTest, APathThatFillsItsRoomIsCut)
{
    const std::wstring program(300, L'q');
    programPath = program.c_str();
    EXPECT_EQ(Command(), L"\"" + program.substr(0, 259) + L"\" 193 0*0");
}
