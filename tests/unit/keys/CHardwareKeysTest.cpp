// Reading the device's hardware buttons.
#include "keys/CHardwareKeys.h"
#include "tests/support/Fatal.h"
#include "tests/support/ScriptedButtons.h"
#include "tests/support/TestHeap.h"

#include <gtest/gtest.h>

class CHardwareKeysTest : public testing::Test
{
  protected:
    ScriptedButtons buttons;
    CHardwareKeys keys;

    // The buttons' keys in order.
    std::vector<std::wstring> Loaded()
    {
        keys.Load();
        std::vector<std::wstring> loaded;
        for (uint32_t i = 0; i < keys.Count(); i++) {
            loaded.emplace_back(keys.At(i).key.Buffer());
        }
        EXPECT_EQ(buttons.openKeys, 0);
        EXPECT_EQ(buttons.machineOpens, 0);
        return loaded;
    }
    using Keys = std::vector<std::wstring>;
};

TEST_F(CHardwareKeysTest, WithoutTheShellsKeyThereAreNone)
{
    buttons.Add(L"40C1");
    buttons.refused = {L""};
    EXPECT_EQ(Loaded(), Keys{});
}

TEST_F(CHardwareKeysTest, WithoutButtonsThereAreNone)
{
    EXPECT_EQ(Loaded(), Keys{});
}

TEST_F(CHardwareKeysTest, AButtonWithoutValuesHasItsKeysName)
{
    buttons.Add(L"40C1");
    ASSERT_EQ(Loaded(), Keys{L"40C1"});
    EXPECT_STREQ(keys.At(0).name.Buffer(), L"40C1");
    EXPECT_STREQ(keys.At(0).command.Buffer(), L"");
    EXPECT_EQ(keys.At(0).vk, 193);
    EXPECT_EQ(keys.At(0).pressAction, 0);
    EXPECT_EQ(keys.At(0).holdAction, 0);
}

TEST_F(CHardwareKeysTest, NameAndCommandAreReadFromTheButtonsKey)
{
    buttons.WriteText(L"40C1", L"Name", L"Calendar button");
    buttons.WriteText(L"40C1", L"Default", L"\\Windows\\calendar.exe");
    ASSERT_EQ(Loaded(), Keys{L"40C1"});
    EXPECT_STREQ(keys.At(0).key.Buffer(), L"40C1");
    EXPECT_STREQ(keys.At(0).name.Buffer(), L"Calendar button");
    EXPECT_STREQ(keys.At(0).command.Buffer(), L"\\Windows\\calendar.exe");
    EXPECT_EQ(keys.At(0).vk, 193);
    EXPECT_EQ(keys.At(0).pressAction, 0);
}

TEST_F(CHardwareKeysTest, TheProgramsOwnCommandGivesTheActions)
{
    buttons.WriteText(L"40C1", L"Default", L"\"\\Quorvane.exe\" 200 4*\\a b.lnk");
    ASSERT_EQ(Loaded(), Keys{L"40C1"});
    EXPECT_EQ(keys.At(0).vk, 200);
    EXPECT_EQ(keys.At(0).pressAction, 4);
    EXPECT_EQ(keys.At(0).holdAction, 2);
    EXPECT_STREQ(keys.At(0).holdApplication.Buffer(), L"\\a b.lnk");
}

TEST_F(CHardwareKeysTest, ValuesThatAreNoTextsAreIgnored)
{
    static constexpr wchar_t text[] = L"\"\\Quorvane.exe\" 200 4*5";
    for (const DWORD type : {REG_NONE, REG_EXPAND_SZ, REG_BINARY, REG_DWORD, REG_MULTI_SZ, 77}) {
        buttons.Write(L"40C1", L"Name", type, text, sizeof text);
        buttons.Write(L"40C1", L"Default", type, text, sizeof text);
        ASSERT_EQ(Loaded(), Keys{L"40C1"}) << type;
        EXPECT_STREQ(keys.At(0).name.Buffer(), L"40C1") << type;
        EXPECT_STREQ(keys.At(0).command.Buffer(), L"") << type;
        EXPECT_EQ(keys.At(0).vk, 193) << type;
    }
}

TEST_F(CHardwareKeysTest, TextsOfAnySizeAreRead)
{
    const struct
    {
        std::string bytes;
        std::wstring text;
    } texts[] = {{"", L""},
                 {std::string("a", 1), L"a"},
                 {std::string("a\0b", 3), L"ab"},
                 {std::string("a\0b\0", 4), L"ab"},
                 {std::string("a\0b\0\0", 5), L"ab"},
                 {std::string("a\0\0\0b\0", 6), L"a"},
                 {std::string(32768, 'x'), std::wstring(16384, L'\x7878')},
                 {std::string(32767, 'x'), std::wstring(16383, L'\x7878') + L"x"}};
    for (const auto& [bytes, text] : texts) {
        buttons.Write(L"40C1", L"Name", REG_SZ, bytes.data(), bytes.size());
        buttons.Write(L"40C1", L"Default", REG_SZ, bytes.data(), bytes.size());
        ASSERT_EQ(Loaded(), Keys{L"40C1"});
        EXPECT_EQ(std::wstring(keys.At(0).name), text) << bytes.size();
        EXPECT_EQ(std::wstring(keys.At(0).command), text) << bytes.size();
    }
}

TEST_F(CHardwareKeysTest, OnlyKeysOfFourCharactersAreButtons)
{
    for (size_t length = 1; length <= 255; length++) {
        buttons.Add(std::wstring(length, L'C'));
    }
    EXPECT_EQ(Loaded(), Keys{L"CCCC"});
}

TEST_F(CHardwareKeysTest, KeysThatAreNotHexadecimalAreNoButtons)
{
    for (const wchar_t* name : {L"40G1", L"Menu", L"4000", L"40 1", L"\x4E00\x4E01\x4E02\x4E03"}) {
        buttons.Add(name);
    }
    EXPECT_EQ(Loaded(), Keys{});
}

TEST_F(CHardwareKeysTest, AMalformedCommandOfOursHidesTheButton)
{
    buttons.WriteText(L"40C1", L"Default", L"\"\\Quorvane.exe\" 193 3");
    buttons.WriteText(L"40C2", L"Default", L"\"\\Quorvane.exe\" 0 3*9");
    buttons.WriteText(L"40C3", L"Default", L"\"\\Quorvane.exe\" ");
    EXPECT_EQ(Loaded(), Keys{L"40C3"});
}

TEST_F(CHardwareKeysTest, ACommandOfOursMakesAnyKeyAButton)
{
    buttons.WriteText(L"Camera", L"Default", L"\"\\Quorvane.exe\" 200 4*5");
    ASSERT_EQ(Loaded(), Keys{L"Camera"});
    EXPECT_EQ(keys.At(0).vk, 200);
}

TEST_F(CHardwareKeysTest, AButtonThatCannotBeOpenedIsListedAllTheSame)
{
    buttons.WriteText(L"40C1", L"Name", L"Calendar");
    buttons.WriteText(L"40C2", L"Name", L"Contacts");
    buttons.refused = {L"40C1"};
    ASSERT_EQ(Loaded(), (Keys{L"40C1", L"40C2"}));
    EXPECT_STREQ(keys.At(0).name.Buffer(), L"40C1");
    EXPECT_STREQ(keys.At(0).command.Buffer(), L"");
}

TEST_F(CHardwareKeysTest, TheButtonsAreSortedByTheirNamesInAnyCase)
{
    buttons.WriteText(L"40C1", L"Name", L"mail");
    buttons.WriteText(L"40C2", L"Name", L"Zoom");
    buttons.WriteText(L"40C3", L"Name", L"Camera");
    buttons.WriteText(L"40C4", L"Name", L"calendar");
    buttons.WriteText(L"40C5", L"Name", L"");
    EXPECT_EQ(Loaded(), (Keys{L"40C5", L"40C4", L"40C3", L"40C1", L"40C2"}));
}

TEST_F(CHardwareKeysTest, ButtonsOfTheSameCodeAreAllListed)
{
    buttons.Add(L"40C1");
    buttons.Add(L"41C1");
    EXPECT_EQ(Loaded(), (Keys{L"40C1", L"41C1"}));
    EXPECT_EQ(keys.At(1).vk, 193);
}

TEST_F(CHardwareKeysTest, ManyButtonsAreLoadedAndReadAnew)
{
    for (int code = 1; code <= 255; code++) {
        wchar_t name[8];
        swprintf(name, 8, L"40%02X", code);
        buttons.Add(name);
    }
    ASSERT_EQ(Loaded().size(), 255u);
    EXPECT_EQ(keys.At(0).vk, 1);
    EXPECT_EQ(keys.At(254).vk, 255);
    const size_t blocks = LiveBlocks();
    EXPECT_EQ(Loaded().size(), 255u);
    EXPECT_EQ(LiveBlocks(), blocks);
    buttons.refused = {L""};
    EXPECT_EQ(Loaded().size(), 0u);
}

TEST_F(CHardwareKeysTest, TheyGoWithTheirOwner)
{
    buttons.Add(L"40C1");
    keys.Load(); // what the test itself notes has its room now
    const size_t before = LiveBlocks();
    {
        CHardwareKeys own;
        own.Load();
        EXPECT_EQ(own.Count(), 1u);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST_F(CHardwareKeysTest, AButtonThatIsNotThereIsFatal)
{
    EXPECT_FATAL(keys.At(0), L"CArray<struct SHardwareKey *>::At", L"Out of range");
}
