// What a profile says in place of the PC's real state: every key, its range, and malformed values.
#include "platform/pc/common/Profile.h"

#include <gtest/gtest.h>

using handheld::ParseProfile;
using handheld::Profile;

TEST(ProfileSectionsTest, NothingIsScriptedByDefault)
{
    const Profile profile = ParseProfile(L"[memory]\n[battery]\n[storage]\n[process]\n");
    EXPECT_FALSE(profile.memory.physical.total);
    EXPECT_FALSE(profile.memory.pageFile.free);
    EXPECT_TRUE(profile.battery.present);
    EXPECT_FALSE(profile.battery.onlyWhenMissing);
    EXPECT_FALSE(profile.battery.percent);
    EXPECT_EQ(profile.FindStorageScript(L"\\"), nullptr);
    EXPECT_EQ(profile.FindProcessScript(L"mail.exe"), nullptr);
}

TEST(ProfileSectionsTest, MemoryHasSixFiguresOf64Bits)
{
    const Profile profile =
        ParseProfile(L"[memory]\nphysical = 1\nphysical-free = 2\npage-file = 3\npage-file-free = 0\n"
                     L"virtual = 18446744073709551615\nvirtual-free = 4294967296\n");
    EXPECT_EQ(profile.memory.physical.total, 1u);
    EXPECT_EQ(profile.memory.physical.free, 2u);
    EXPECT_EQ(profile.memory.pageFile.total, 3u);
    EXPECT_EQ(profile.memory.pageFile.free, 0u);
    EXPECT_EQ(profile.memory.virtualSpace.total, 0xFFFFFFFFFFFFFFFFu);
    EXPECT_EQ(profile.memory.virtualSpace.free, 0x100000000u);
}

TEST(ProfileSectionsTest, AMalformedFigureIsNotScripted)
{
    for (const wchar_t* value :
         {L"", L"-1", L"64 MB", L"0x40", L"18446744073709551616", L"99999999999999999999999"}) {
        const Profile profile = ParseProfile(std::wstring(L"[memory]\nphysical=") + value);
        EXPECT_FALSE(profile.memory.physical.total) << testing::PrintToString(std::wstring(value));
    }
    EXPECT_EQ(ParseProfile(L"[memory]\nphysical=7\nphysical=all").memory.physical.total, 7u);
}

TEST(ProfileSectionsTest, TheBatteryHasEveryFigureOfItsRange)
{
    const Profile profile =
        ParseProfile(L"[battery]\npresent = No\nwhen = Missing\npercent = 255\nac = 2\nlife = 4294967295\n"
                     L"full-life = 0\nbackup-percent = 100\n");
    EXPECT_FALSE(profile.battery.present);
    EXPECT_TRUE(profile.battery.onlyWhenMissing);
    EXPECT_EQ(profile.battery.percent, 255);
    EXPECT_EQ(profile.battery.lineStatus, 2);
    EXPECT_EQ(profile.battery.life, 4294967295u);
    EXPECT_EQ(profile.battery.fullLife, 0u);
    EXPECT_EQ(profile.battery.backupPercent, 100);
}

TEST(ProfileSectionsTest, AMalformedBatteryIsThePcs)
{
    const Profile profile = ParseProfile(L"[battery]\npresent = maybe\nwhen = never\npercent = 256\nac = -1\n"
                                         L"life = 4294967296\nfull-life = 1h\nbackup-percent =\n");
    EXPECT_TRUE(profile.battery.present);
    EXPECT_FALSE(profile.battery.onlyWhenMissing);
    EXPECT_FALSE(profile.battery.percent);
    EXPECT_FALSE(profile.battery.lineStatus);
    EXPECT_FALSE(profile.battery.life);
    EXPECT_FALSE(profile.battery.fullLife);
    EXPECT_FALSE(profile.battery.backupPercent);
}

TEST(ProfileSectionsTest, StorageIsFoundByItsPathInAnyCase)
{
    const Profile profile = ParseProfile(L"[storage]\n\\ = 0, 5000000000000\n\\Storage Card = 100,50\n"
                                         L"\\Gone = Fail\n");
    ASSERT_NE(profile.FindStorageScript(L"\\"), nullptr);
    EXPECT_EQ(profile.FindStorageScript(L"\\")->total, 0u);
    EXPECT_EQ(profile.FindStorageScript(L"\\")->free, 5000000000000u);
    EXPECT_FALSE(profile.FindStorageScript(L"\\")->fails);
    ASSERT_NE(profile.FindStorageScript(L"\\STORAGE card"), nullptr);
    EXPECT_EQ(profile.FindStorageScript(L"\\STORAGE card")->total, 100u);
    EXPECT_EQ(profile.FindStorageScript(L"\\STORAGE card")->free, 50u);
    ASSERT_NE(profile.FindStorageScript(L"\\Gone"), nullptr);
    EXPECT_TRUE(profile.FindStorageScript(L"\\Gone")->fails);
    EXPECT_EQ(profile.FindStorageScript(L"Storage Card"), nullptr);
}

TEST(ProfileSectionsTest, MalformedStorageCountsForNothing)
{
    for (const wchar_t* value : {L"", L"100", L"100,", L",100", L"1,2,3", L"failed", L"-1,1"}) {
        const Profile profile = ParseProfile(std::wstring(L"[storage]\n\\=") + value);
        EXPECT_EQ(profile.FindStorageScript(L"\\"), nullptr) << testing::PrintToString(std::wstring(value));
    }
}

TEST(ProfileSectionsTest, EachRefusalHasItsWord)
{
    const Profile profile = ParseProfile(L"[process]\na.exe = refuse-open\nb.exe = refuse-end\n"
                                         L"c.exe = no-module-snapshot\nd.exe = no-modules\n"
                                         L"e.exe = no-module-paths\nF.exe = No-Heaps, refuse-end\n"
                                         L"g.exe = hidden\n");
    const wchar_t* const programs[] = {L"a.exe", L"b.exe",          L"c.exe", L"d.exe",
                                       L"e.exe", L"C:\\Dir\\f.EXE", L"g.exe"};
    const bool expected[][7] = {
        {true, false, false, false, false, false, false}, {false, true, false, false, false, false, false},
        {false, false, true, false, false, false, false}, {false, false, false, true, false, false, false},
        {false, false, false, false, true, false, false}, {false, true, false, false, false, true, false},
        {false, false, false, false, false, false, true}};
    for (size_t i = 0; i < 7; i++) {
        const handheld::ProcessScript* script = profile.FindProcessScript(programs[i]);
        ASSERT_NE(script, nullptr) << i;
        EXPECT_EQ(script->refusesOpen, expected[i][0]) << i;
        EXPECT_EQ(script->refusesEnd, expected[i][1]) << i;
        EXPECT_EQ(script->noModuleSnapshot, expected[i][2]) << i;
        EXPECT_EQ(script->noModules, expected[i][3]) << i;
        EXPECT_EQ(script->noModulePaths, expected[i][4]) << i;
        EXPECT_EQ(script->noHeaps, expected[i][5]) << i;
        EXPECT_EQ(script->hidden, expected[i][6]) << i;
    }
}

TEST(ProfileSectionsTest, AnUnknownRefusalMakesTheLineCountForNothing)
{
    for (const wchar_t* value : {L"", L"refuse", L"refuse-open no-heaps", L"refuse-open,", L"none"}) {
        const Profile profile = ParseProfile(std::wstring(L"[process]\na.exe=") + value);
        EXPECT_EQ(profile.FindProcessScript(L"a.exe"), nullptr)
            << testing::PrintToString(std::wstring(value));
    }
}
