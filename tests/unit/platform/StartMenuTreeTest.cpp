// The Start menu's folder as a tree.
#include "platform/pc/common/StartMenuTree.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <ostream>

using handheld::ReadStartMenu;
using handheld::StartMenuTree;

// One line: programs, then folders with what is in them in brackets.
static std::wstring Flat(const StartMenuTree& tree)
{
    std::wstring text;
    for (const auto& program : tree.programs) {
        text += program.name + L' ';
    }
    for (const auto& folder : tree.folders) {
        text += folder.name + L"[ " + Flat(folder) + L"] ";
    }
    return text;
}

class StartMenuTreeTest : public testing::Test
{
  protected:
    const TempFolder menu;

    std::wstring Read() const { return Flat(ReadStartMenu(menu.Folder())); }
};

TEST_F(StartMenuTreeTest, BothListsAreSortedByNameWhateverTheLettersCase)
{
    for (const wchar_t* name : {L"wine.lnk", L"Beta.LNK", L"alpha.lnk", L"My.App.lnk"}) {
        menu.WriteFile(name, {});
    }
    for (const wchar_t* name : {L"tools", L"Games"}) {
        menu.MakeFolder(name);
    }
    menu.WriteFile(L"tools\\b.lnk", {});
    menu.WriteFile(L"tools\\A.lnk", {});
    menu.WriteFile(L"Games\\Mine.lnk", {});
    EXPECT_EQ(Read(), L"alpha Beta My.App wine Games[ Mine ] tools[ A b ] ");
}

TEST_F(StartMenuTreeTest, AProgramKnowsItsFile)
{
    menu.MakeFolder(L"Programs");
    const std::wstring file = menu.WriteFile(L"Programs\\One.lnk", {});
    const StartMenuTree tree = ReadStartMenu(menu.Folder());
    ASSERT_EQ(tree.folders.size(), 1u);
    ASSERT_EQ(tree.folders[0].programs.size(), 1u);
    EXPECT_EQ(tree.folders[0].programs[0].shortcut, file);
}

TEST_F(StartMenuTreeTest, OnlyShortcutsCountAndThoseNamedIconDoNot)
{
    for (const wchar_t* name : {L"ICON.lnk", L"icon2.lnk", L"a.lnkx", L"b.txt", L"c.exe"}) {
        menu.WriteFile(name, {});
    }
    EXPECT_EQ(Read(), L"icon2 ");
}

TEST_F(StartMenuTreeTest, FoldersWithoutAnyShortcutAreLeftOut)
{
    for (const wchar_t* name : {L"Empty", L"Outer", L"Outer\\Inner", L"Named.lnk", L"Named.lnk\\Deep"}) {
        menu.MakeFolder(name);
    }
    menu.WriteFile(L"Outer\\Inner\\icon.lnk", {});
    menu.WriteFile(L"Named.lnk\\Deep\\x.lnk", {});
    EXPECT_EQ(Read(), L"Named.lnk[ Deep[ x ] ] ");
}

TEST_F(StartMenuTreeTest, VeryDeepFoldersAreNotFollowed)
{
    std::wstring path;
    for (int depth = 0; depth < 12; depth++) {
        path += depth == 0 ? L"d" : L"\\d";
        menu.MakeFolder(path.c_str());
        menu.WriteFile((path + L"\\p.lnk").c_str(), {});
    }
    int depth = 0;
    for (StartMenuTree tree = ReadStartMenu(menu.Folder()); !tree.folders.empty(); depth++) {
        ASSERT_EQ(tree.folders[0].programs.size(), 1u);
        const StartMenuTree inner = tree.folders[0];
        tree = inner;
    }
    EXPECT_EQ(depth, 8);
}

TEST_F(StartMenuTreeTest, NoFolderIsAnEmptyMenu)
{
    EXPECT_TRUE(ReadStartMenu(menu.Path(L"missing")).IsEmpty());
    EXPECT_TRUE(ReadStartMenu(menu.Folder()).IsEmpty());
}
