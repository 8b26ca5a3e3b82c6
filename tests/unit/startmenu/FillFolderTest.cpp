// The shortcuts below a folder: which of them, in which order of searches, and how deep.
#include "startmenu/FillFolder.h"
#include "tests/support/Fatal.h"
#include "tests/support/ScriptedStartMenu.h"
#include "tests/support/TestHeap.h"

class FillFolderTest : public testing::Test
{
  protected:
    using Texts = std::vector<std::wstring>;

    ScriptedStartMenu menu;
    CRecords<SAppsList> programs;

    Texts Filled(const wchar_t* folder = L"\\Menu\\")
    {
        programs.Clear();
        FillFolder(folder, programs);
        EXPECT_EQ(menu.searches, 0) << "every search is closed";
        EXPECT_FALSE(menu.badRequest);
        Texts paths;
        for (uint32_t i = 0; i < programs.Count(); i++) {
            paths.emplace_back(programs.At(i)->path.Buffer());
        }
        return paths;
    }
};

TEST_F(FillFolderTest, AShortcutGivesARecordWithPathAndTarget)
{
    menu.Add(L"My App.lnk", L"\"\\Program Files\\app.exe\" -x 100%");
    EXPECT_EQ(Filled(), Texts{L"\\Menu\\My App.lnk"});
    const SAppsList& program = *programs.At(0);
    EXPECT_STREQ(program.target, L"\"\\Program Files\\app.exe\" -x 100%");
    EXPECT_TRUE(program.name.IsEmpty());
    EXPECT_EQ(program.icon, -1);
}

TEST_F(FillFolderTest, ItsFilesAreSearchedBeforeItsFolders)
{
    menu.Add(L"b\\two.lnk");
    menu.Add(L"a\\three.lnk");
    menu.Add(L"one.lnk");
    EXPECT_EQ(Filled(), (Texts{L"\\Menu\\one.lnk", L"\\Menu\\b\\two.lnk", L"\\Menu\\a\\three.lnk"}));
    EXPECT_EQ(menu.calls,
              (Texts{L"search \\Menu\\*.lnk", L"search \\Menu\\*", L"search \\Menu\\b\\*.lnk",
                     L"search \\Menu\\b\\*", L"search \\Menu\\a\\*.lnk", L"search \\Menu\\a\\*"}));
}

TEST_F(FillFolderTest, RecordsAreAppended)
{
    programs.Append(new SAppsList);
    programs.At(0)->path = L"before";
    menu.Add(L"one.lnk");
    FillFolder(L"\\Menu\\", programs);
    ASSERT_EQ(programs.Count(), 2u);
    EXPECT_STREQ(programs.At(0)->path, L"before");
}

TEST_F(FillFolderTest, OtherFilesAreNoShortcuts)
{
    menu.Add(L"readme.txt");
    menu.Add(L"a.lnk.bak");
    menu.Add(L"lnk");
    EXPECT_EQ(Filled(), Texts{});
}

TEST_F(FillFolderTest, TheFoldersIconIsLeftOutHoweverItIsWritten)
{
    menu.Add(L"icon.lnk");
    menu.Add(L"Games\\ICON.LNK");
    menu.Add(L"Games\\Icon.lnk");
    EXPECT_EQ(Filled(), Texts{});
    menu.Add(L"icon2.lnk");
    menu.Add(L"Games\\myicon.lnk");
    menu.Add(L"icon.lnk.lnk");
    EXPECT_EQ(Filled(), (Texts{L"\\Menu\\icon2.lnk", L"\\Menu\\icon.lnk.lnk", L"\\Menu\\Games\\myicon.lnk"}));
}

TEST_F(FillFolderTest, ATargetThatCannotBeReadIsEmptyAndTheRecordStays)
{
    menu.Add(L"a.lnk", L"\\Windows\\a.exe");
    menu.Add(L"broken.lnk");
    menu.Add(L"c.lnk", L"\\Windows\\c.exe");
    ASSERT_EQ(Filled().size(), 3u);
    EXPECT_STREQ(programs.At(1)->target, L"") << "not that of the one before";
    EXPECT_STREQ(programs.At(2)->target, L"\\Windows\\c.exe");
}

TEST_F(FillFolderTest, ATargetOfTheWholeRoomIsCutAtItsEnd)
{
    for (const size_t length : {258u, 259u, 260u, 300u}) {
        menu.folders[L"\\Menu\\"].clear();
        const std::wstring target(length, L't');
        menu.Add(L"a.lnk", target);
        ASSERT_EQ(Filled().size(), 1u);
        EXPECT_EQ(programs.At(0)->target.Buffer(), target.substr(0, 259)) << length;
    }
}

TEST_F(FillFolderTest, NamesAreTakenAsTheyAre)
{
    const Texts names = {L"My.App.lnk", L".lnk", L"Проводник.LNK", L"Café & 100% \xD83D\xDE00.Lnk"};
    Texts expected;
    for (const std::wstring& name : names) {
        expected.push_back(menu.Add(name));
    }
    EXPECT_EQ(Filled(), expected);
}

TEST_F(FillFolderTest, AFolderNamedLikeAShortcutIsEnteredTwice)
{
    menu.Add(L"Games.lnk\\Chess.lnk");
    EXPECT_EQ(Filled(), (Texts{L"\\Menu\\Games.lnk\\Chess.lnk", L"\\Menu\\Games.lnk\\Chess.lnk"}));
    EXPECT_NE(programs.At(0), programs.At(1));
}

TEST_F(FillFolderTest, OneInAnotherOfThatKindIsEnteredFourTimes)
{
    menu.Add(L"Games.lnk\\Board.lnk\\Chess.lnk");
    EXPECT_EQ(Filled(), Texts(4, L"\\Menu\\Games.lnk\\Board.lnk\\Chess.lnk"));
}

TEST_F(FillFolderTest, AFolderWithTheIconsNameIsAFolder)
{
    menu.Add(L"icon.lnk\\Chess.lnk");
    EXPECT_EQ(Filled(), Texts(2, L"\\Menu\\icon.lnk\\Chess.lnk"));
}

TEST_F(FillFolderTest, AFolderThatIsNotThereHasNothing)
{
    EXPECT_EQ(Filled(L"\\No such folder\\"), Texts{});
    menu.folders[L"\\Menu\\"] = {{L"Unreadable", true}};
    EXPECT_EQ(Filled(), Texts{});
}

TEST_F(FillFolderTest, TwentyFiveFoldersDeep)
{
    std::wstring path;
    for (int i = 1; i <= 25; i++) {
        path += L"f" + std::to_wstring(i) + L"\\";
    }
    menu.Add(path + L"deep.lnk");
    EXPECT_EQ(Filled(), Texts{L"\\Menu\\" + path + L"deep.lnk"});
}

// Its shortcut is still found where the platform can open it.
TEST_F(FillFolderTest, OfTheLongestFolderThatCanBeOpenedNothingIsLost)
{
    const std::wstring longest(259 - 7, L'f');
    menu.Add(longest + L"\\a.lnk");
    menu.Add(longest + L"f\\a.lnk");
    EXPECT_EQ(Filled(), Texts{L"\\Menu\\" + longest + L"\\a.lnk"});
}

// As a PC shows a folder that is a link to itself: one more level at every look.
TEST_F(FillFolderTest, AFolderThatLeadsBackToItselfEnds)
{
    menu.Add(L"a.lnk");
    for (std::wstring path = L"\\Menu\\"; path.size() < 1000; path += L"loop\\") {
        menu.folders[path] = {{L"a.lnk", false}, {L"loop", true}};
    }
    const Texts found = Filled();
    EXPECT_EQ(found.size(), 51u) << "as many as paths that can be opened";
    EXPECT_EQ(found.back().size(), 6 + 50 * 5 + 5u);
}

TEST_F(FillFolderTest, AFileAmongTheFoldersIsFatal)
{
    menu.keepsToFolders = false;
    menu.Add(L"readme.txt");
    EXPECT_FATAL(Filled(), L"FillFolder", L"Error");
}

TEST_F(FillFolderTest, WithoutMemoryForARecordTheEndIsFatal)
{
    menu.Add(L"a.lnk");
    const auto fill = [&] {
        const AllocationFailure failure(0);
        FillFolder(L"\\Menu\\", programs);
    };
    EXPECT_FATAL(fill(), L"FillFolder", L"Not enough memory");
}
