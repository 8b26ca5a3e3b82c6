// Reading the Start menu anew: names, order and the table of the well-known programs.
#include "startmenu/CStartPrograms.h"
#include "tests/support/ScriptedStartMenu.h"
#include "tests/unit/ScriptedIcons.h"

#include <gtest/gtest.h>

#include <algorithm>

class RefillTest : public testing::Test
{
  protected:
    using Texts = std::vector<std::wstring>;
    using Slots = std::vector<int>;

    ScriptedStartMenu menu;
    ScriptedIcons shell;
    CStartPrograms programs;

    Texts Names()
    {
        Texts names;
        for (uint32_t i = 0; i < programs.Programs().Count(); i++) {
            names.emplace_back(programs.Programs().At(i)->name.Buffer());
        }
        return names;
    }

    Texts Refilled()
    {
        programs.Refill(nullptr);
        return Names();
    }

    Slots Known()
    {
        Slots slots;
        for (uint32_t i = 0; i < programs.KnownPrograms().Count(); i++) {
            slots.push_back(programs.KnownPrograms().At(i));
        }
        return slots;
    }
};

TEST_F(RefillTest, NamesHaveNeitherFolderNorExtension)
{
    menu.Add(L"Plain.lnk");
    menu.Add(L"My.App.lnk");
    menu.Add(L"Folder 2.0\\Inner.LNK");
    menu.Add(L"Q.lnk.lnk");
    EXPECT_EQ(Refilled(), (Texts{L"Inner", L"My.App", L"Plain", L"Q.lnk"}));
    EXPECT_STREQ(programs.Programs().At(0)->path, L"\\Menu\\Folder 2.0\\Inner.LNK");
}

TEST_F(RefillTest, AFileThatIsOnlyAnExtensionHasAnEmptyName)
{
    menu.Add(L".lnk");
    menu.Add(L"a.lnk");
    EXPECT_EQ(Refilled(), (Texts{L"", L"a"}));
}

TEST_F(RefillTest, ProgramsAreSortedByNameWhateverTheirCase)
{
    for (const wchar_t* name : {L"zebra", L"Beta", L"alpha", L"Zulu", L"ALPHABET", L"_x", L"10", L"9"}) {
        menu.Add(std::wstring(name) + L".lnk");
    }
    EXPECT_EQ(Refilled(), (Texts{L"10", L"9", L"_x", L"alpha", L"ALPHABET", L"Beta", L"zebra", L"Zulu"}));
}

TEST_F(RefillTest, CyrillicAndAccentedLettersAreSortedWhateverTheirCase)
{
    for (const wchar_t* name : {L"яблоко", L"ПРОВОДНИК", L"Часы", L"проводка", L"Éa", L"éb", L"ÉC"}) {
        menu.Add(std::wstring(name) + L".lnk");
    }
    EXPECT_EQ(Refilled(), (Texts{L"Éa", L"éb", L"ÉC", L"проводка", L"ПРОВОДНИК", L"Часы", L"яблоко"}));
}

TEST_F(RefillTest, EqualNamesOfTwoFoldersAreTwoNeighbours)
{
    menu.Add(L"b\\calendar.LNK", L"\\Windows\\b.exe");
    menu.Add(L"Delta.lnk");
    menu.Add(L"a\\Calendar.lnk", L"\\Windows\\a.exe");
    menu.Add(L"Alpha.lnk");
    Texts names = Refilled();
    ASSERT_EQ(names.size(), 4u);
    std::sort(names.begin() + 1, names.begin() + 3); // in either order
    EXPECT_EQ(names, (Texts{L"Alpha", L"Calendar", L"calendar", L"Delta"}));
}

TEST_F(RefillTest, OnlyFolderIconsAreNoPrograms)
{
    menu.Add(L"icon.lnk");
    menu.Add(L"Games\\ICON.lnk");
    EXPECT_EQ(Refilled(), Texts{});
    EXPECT_EQ(Known(), Slots(8, -1));
}

TEST_F(RefillTest, AThousandProgramsInFortyFolders)
{
    for (int i = 999; i >= 0; i--) {
        menu.Add(L"Folder " + std::to_wstring(i % 40) + L"\\" + std::to_wstring(1000 + i).substr(1) +
                 L".lnk");
    }
    menu.targets[L"\\Menu\\Folder 20\\500.lnk"] = L"\\Windows\\cprog.exe";
    const Texts names = Refilled();
    ASSERT_EQ(names.size(), 1000u);
    EXPECT_EQ(names.front(), L"000");
    EXPECT_EQ(names.back(), L"999");
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(Known().at(5), 500);
}

TEST_F(RefillTest, WhatWasBeforeIsGoneBeforeTheShellIsAsked)
{
    menu.Add(L"a.lnk");
    const auto fail = [&](auto&& setUp) {
        menu.allocatorAnswer = menu.locationAnswer = S_OK;
        menu.givesPath = true;
        ASSERT_EQ(Refilled(), Texts{L"a"});
        const size_t table = Known().size();
        setUp();
        EXPECT_EQ(Refilled(), Texts{});
        EXPECT_EQ(Known().size(), table) << "the table is left alone";
    };
    fail([&] { menu.allocatorAnswer = E_FAIL; });
    fail([&] { menu.locationAnswer = E_FAIL; });
    fail([&] { menu.givesPath = false; });
}

TEST_F(RefillTest, WithoutAPathTheRootIsNotSearched)
{
    menu.folders[L"\\"] = {{L"root.lnk", false}};
    menu.givesPath = false;
    EXPECT_EQ(Refilled(), Texts{});
    EXPECT_EQ(std::count(menu.calls.begin(), menu.calls.end(), L"search \\*.lnk"), 0);
}

TEST_F(RefillTest, ARefillReplacesWhatWasThere)
{
    menu.Add(L"old.lnk");
    menu.Add(L"stays.lnk");
    Refilled();
    menu.Remove(L"old.lnk");
    menu.Add(L"new.lnk");
    EXPECT_EQ(Refilled(), (Texts{L"new", L"stays"}));
}

TEST_F(RefillTest, TheOwnerIsHandedOn)
{
    const HWND owner = reinterpret_cast<HWND>(0x4321);
    programs.Refill(owner);
    EXPECT_EQ(menu.askedOwner, owner);
}

TEST_F(RefillTest, NoIconIsAskedFor)
{
    menu.Add(L"Calendar.lnk", L"\\Windows\\poutlook.exe calendar");
    Refilled();
    EXPECT_TRUE(shell.askedPaths.empty());
    EXPECT_EQ(programs.Programs().At(0)->icon, -1);
}

TEST_F(RefillTest, KnownProgramsAreFoundByTheirPlaceInTheSortedList)
{
    menu.Add(L"Web.lnk", L"\\Windows\\IEXPLORE.EXE");
    menu.Add(L"Sharing.lnk", L"\\Windows\\IntShrUI.exe");
    menu.Add(L"Agenda.lnk", L"\\Windows\\poutlook.exe calendar");
    menu.Add(L"Phone.lnk", L"\\Windows\\cprog.exe");
    EXPECT_EQ(Refilled(), (Texts{L"Agenda", L"Phone", L"Sharing", L"Web"}));
    EXPECT_EQ(Known(), (Slots{-1, 0, -1, 3, -1, 1, -1, -1}));
}

TEST_F(RefillTest, OfSeveralTheLastInOrderCounts)
{
    menu.Add(L"c.lnk", L"iexplore.exe");
    menu.Add(L"b.lnk", L"iexplore.exe");
    menu.Add(L"d.lnk", L"other.exe");
    Refilled();
    EXPECT_EQ(Known().at(3), 1);
}

TEST_F(RefillTest, TheTableGrowsByEightAtEachScanAndOnlyItsBeginningIsUsed)
{
    menu.Add(L"a.lnk", L"cprog.exe");
    Refilled();
    EXPECT_EQ(Known(), (Slots{-1, -1, -1, -1, -1, 0, -1, -1}));
    Refilled();
    EXPECT_EQ(Known().size(), 16u);
    menu.Add(L"0.lnk", L"other.exe");
    Refilled();
    Slots expected(24, -1);
    expected[5] = 1;
    EXPECT_EQ(Known(), expected);
}

TEST_F(RefillTest, ASlotWhoseProgramIsGoneKeepsItsIndex)
{
    menu.Add(L"Mail.lnk", L"poutlook.exe calendar");
    menu.Add(L"b.lnk", L"b.exe");
    menu.Add(L"a.lnk", L"a.exe");
    Refilled();
    ASSERT_EQ(Known().at(1), 2);
    menu.Remove(L"Mail.lnk");
    menu.Add(L"z.lnk", L"z.exe");
    Refilled();
    EXPECT_EQ(Known().at(1), 2);
    shell.indexes[L"\\Menu\\z.lnk"] = 77;
    EXPECT_EQ(programs.KnownIcon(1), 77) << "that of what stands there now";
    menu.Remove(L"z.lnk");
    Refilled();
    EXPECT_EQ(Known().at(1), 2);
    EXPECT_EQ(programs.KnownIcon(1), -1) << "nothing stands there any more";
}

TEST_F(RefillTest, AfterARefillIconsAreAskedForAnew)
{
    menu.Add(L"Mail.lnk", L"poutlook.exe calendar");
    Refilled();
    shell.indexes[L"\\Menu\\Mail.lnk"] = 5;
    EXPECT_EQ(programs.KnownIcon(1), 5);
    shell.indexes[L"\\Menu\\Mail.lnk"] = 6;
    EXPECT_EQ(programs.KnownIcon(1), 5);
    Refilled();
    EXPECT_EQ(programs.KnownIcon(1), 6);
}

TEST_F(RefillTest, BeforeTheFirstScanThereIsNoKnownProgram)
{
    menu.locationAnswer = E_FAIL;
    Refilled();
    EXPECT_TRUE(Known().empty());
    EXPECT_EQ(programs.KnownIcon(1), -1);
}
