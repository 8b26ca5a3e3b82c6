// The description of a handheld: what its text may say and what a malformed one leaves.
#include "platform/pc/common/Profile.h"

#include <gtest/gtest.h>

using handheld::ParseProfile;
using handheld::Profile;

TEST(ProfileTest, AnEmptyTextIsAPocketPc)
{
    const Profile profile = ParseProfile(L"");
    EXPECT_EQ(profile.platformName, L"PocketPC");
    EXPECT_EQ(profile.width, 240);
    EXPECT_EQ(profile.height, 320);
    EXPECT_EQ(profile.dpi, 96);
    EXPECT_EQ(profile.orientation, 0);
    EXPECT_EQ(profile.securityTier, 0);
    EXPECT_TRUE(profile.cards.empty());
    EXPECT_EQ(profile.root, L"");
    EXPECT_EQ(profile.startMenu, L"");
    EXPECT_EQ(profile.holdMilliseconds, 1000);
    EXPECT_FALSE(profile.IsSmartphone());
}

TEST(ProfileTest, TheHandheldSectionSetsEveryField)
{
    const Profile profile =
        ParseProfile(L"; a comment\r\n[HandHeld]\r\n platform = SmartPhone \r\nWidth=480\r\n"
                     L"height = 640\r\ndpi=192\r\ntier=2\r\n"
                     L"cards = \\Storage Card, CF Card\r\nroot = D:\\Device\\\r\n"
                     L"start-menu = \\Windows\\Start Menu\r\nhold-ms = 300\r\n");
    EXPECT_EQ(profile.platformName, L"SmartPhone");
    EXPECT_TRUE(profile.IsSmartphone());
    EXPECT_EQ(profile.width, 480);
    EXPECT_EQ(profile.height, 640);
    EXPECT_EQ(profile.dpi, 192);
    EXPECT_EQ(profile.securityTier, 2);
    ASSERT_EQ(profile.cards.size(), 2u);
    EXPECT_EQ(profile.cards[0], L"Storage Card");
    EXPECT_EQ(profile.cards[1], L"CF Card");
    EXPECT_EQ(profile.root, L"D:\\Device");
    EXPECT_EQ(profile.startMenu, L"\\Windows\\Start Menu");
    EXPECT_EQ(profile.holdMilliseconds, 300);
}

TEST(ProfileTest, TheLastLineNeedsNoEndAndTheFirstMayHaveAByteOrderMark)
{
    EXPECT_EQ(ParseProfile(L"\xFEFF[handheld]\nwidth=320").width, 320);
}

TEST(ProfileTest, ACommentEndsALineButNoName)
{
    const Profile profile = ParseProfile(L"[handheld] ; the device\nplatform = PocketPC ; or SmartPhone\n"
                                         L"#width = 111\nwidth = 333 # pixels\ncards = C# Card, A;B ;, D\n");
    EXPECT_EQ(profile.platformName, L"PocketPC");
    EXPECT_EQ(profile.width, 333);
    EXPECT_EQ(profile.cards, (std::vector<std::wstring>{L"C# Card", L"A;B"}));
}

TEST(ProfileTest, ACardMayHaveNoNameOnlyInQuotes)
{
    const Profile profile = ParseProfile(L"[handheld]\ncards = \"\", , \"A Card\", \\, B,\n");
    EXPECT_EQ(profile.cards, (std::vector<std::wstring>{L"", L"A Card", L"", L"B"}));
    EXPECT_TRUE(ParseProfile(L"[handheld]\ncards = A\ncards =\n").cards.empty());
}

TEST(ProfileTest, MalformedValuesLeaveTheDefaults)
{
    for (const wchar_t* value : {L"", L"-240", L"0", L"95", L"4097", L"24O", L"0x140", L"4294967536",
                                 L"240 "
                                 L"320"}) {
        const Profile profile = ParseProfile(std::wstring(L"[handheld]\nwidth=") + value);
        EXPECT_EQ(profile.width, 240) << testing::PrintToString(std::wstring(value));
    }
    EXPECT_EQ(ParseProfile(L"[handheld]\ntier=3").securityTier, 0);
    EXPECT_EQ(ParseProfile(L"[handheld]\nplatform=").platformName, L"PocketPC");
}

TEST(ProfileTest, UnknownSectionsKeysAndLinesAreIgnored)
{
    const Profile profile =
        ParseProfile(L"width=111\n[other]\nwidth=222\n[handheld]\ncolour=blue\nnonsense\nwidth=333\n");
    EXPECT_EQ(profile.width, 333);
}

TEST(ProfileTest, AHeapScriptIsFoundByFileNameInAnyCaseAndFolder)
{
    const Profile profile = ParseProfile(L"[heap]\nMail.exe = 100, 200 | | 300\n");
    const handheld::HeapScript* script = profile.FindHeapScript(L"C:\\Windows\\MAIL.EXE");
    ASSERT_NE(script, nullptr);
    ASSERT_EQ(script->heaps.size(), 3u);
    EXPECT_EQ(script->heaps[0], (std::vector<unsigned>{100, 200}));
    EXPECT_TRUE(script->heaps[1].empty());
    EXPECT_EQ(script->heaps[2], std::vector<unsigned>{300});
    EXPECT_EQ(profile.FindHeapScript(L"C:\\mail.exe\\other.exe"), nullptr);
}

TEST(ProfileTest, AMalformedHeapScriptCountsForNothing)
{
    for (const wchar_t* value : {L"100,,200", L"100 200", L"-1", L"4294967296", L"all"}) {
        const Profile profile = ParseProfile(std::wstring(L"[heap]\nmail.exe=") + value);
        EXPECT_EQ(profile.FindHeapScript(L"mail.exe"), nullptr)
            << testing::PrintToString(std::wstring(value));
    }
    EXPECT_NE(ParseProfile(L"[heap]\nmail.exe=4294967295").FindHeapScript(L"mail.exe"), nullptr);
}

TEST(ProfileTest, AnOrientationIsSomeDegreesByTheDevicesNumber)
{
    EXPECT_EQ(ParseProfile(L"[handheld]\norientation = 90").orientation, 1);
    EXPECT_EQ(ParseProfile(L"[handheld]\norientation = 180").orientation, 2);
    EXPECT_EQ(ParseProfile(L"[handheld]\norientation = 270").orientation, 4);
    for (const wchar_t* text : {L"0", L"4", L"45", L"360", L"-90", L"left", L""}) {
        EXPECT_EQ(ParseProfile(std::wstring(L"[handheld]\norientation = ") + text).orientation, 0) << text;
    }
}
