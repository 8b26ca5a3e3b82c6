// The Start menu as real folders and shortcuts.
#include "startmenu/CStartPrograms.h"
#include "tests/support/ScriptedStartMenu.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

class RealStartMenuTest : public testing::Test
{
  protected:
    using Texts = std::vector<std::wstring>;

    TempFolder folder;
    ScriptedStartMenu menu; // tells where it is, and the targets
    CStartPrograms programs;

    RealStartMenuTest() { menu.place = folder.Folder(); }

    void Write(const wchar_t* name) const { folder.WriteFile(name, {}); }

    Texts Refilled()
    {
        programs.Refill(nullptr);
        Texts names;
        for (uint32_t i = 0; i < programs.Programs().Count(); i++) {
            names.emplace_back(programs.Programs().At(i)->name.Buffer());
        }
        return names;
    }
};

TEST_F(RealStartMenuTest, AnEmptyFolderHasNoPrograms)
{
    EXPECT_EQ(Refilled(), Texts{});
}

TEST_F(RealStartMenuTest, AFolderThatIsNotThereHasNone)
{
    menu.place = folder.Path(L"gone");
    EXPECT_EQ(Refilled(), Texts{});
}

TEST_F(RealStartMenuTest, ShortcutsOfAllFoldersAreFound)
{
    folder.MakeFolder(L"Games");
    folder.MakeFolder(L"Games\\Board");
    folder.MakeFolder(L"Empty");
    for (const wchar_t* name : {L"Zoo.lnk", L"Games\\Pyramid.LNK", L"Games\\Board\\My.Chess.lnk",
                                L"Games\\icon.lnk", L"notes.txt", L"a.lnkx", L"Проводник.lnk"}) {
        Write(name);
    }
    menu.targets[folder.Path(L"Zoo.lnk")] = L"\\Windows\\zoo.exe";
    EXPECT_EQ(Refilled(), (Texts{L"My.Chess", L"Pyramid", L"Zoo", L"Проводник"}));
    EXPECT_EQ(programs.Programs().At(0)->path.Buffer(), folder.Path(L"Games\\Board\\My.Chess.lnk"));
    EXPECT_STREQ(programs.Programs().At(2)->target, L"\\Windows\\zoo.exe");
    EXPECT_FALSE(menu.badRequest);
}

TEST_F(RealStartMenuTest, AFolderNamedLikeAShortcutCountsTwice)
{
    folder.MakeFolder(L"Tools.lnk");
    Write(L"Tools.lnk\\Hammer.lnk");
    EXPECT_EQ(Refilled(), Texts(2, L"Hammer"));
}

TEST_F(RealStartMenuTest, TwentyFiveFoldersDeep)
{
    std::wstring path;
    for (int i = 0; i < 25; i++) {
        path += (i ? L"\\f" : L"f");
        folder.MakeFolder(path.c_str());
    }
    Write((path + L"\\deep.lnk").c_str());
    EXPECT_EQ(Refilled(), Texts{L"deep"});
}
