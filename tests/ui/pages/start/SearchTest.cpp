// The launcher page: what a search leaves in the list, and which row is selected afterwards.
// profiles: pocketpc smartphone
#include "tests/ui/pages/start/StartPageTest.h"

class SearchTest : public StartPageTest
{
  protected:
    // What a search among these programs leaves.
    Names Found(const Names& programs, const std::wstring& text)
    {
        menu.folders[L"\\Menu\\"].clear();
        AddPrograms(programs);
        Names found;
        OnPage([&](ProgramApp& app) {
            Search(app, text);
            found = Listed(app);
        });
        return found;
    }
};

TEST_F(SearchTest, WithoutATextEveryProgramIsListedInOrder)
{
    EXPECT_EQ(Found({L"Word", L"calc", L"Games"}, L""), (Names{L"calc", L"Games", L"Word"}));
}

TEST_F(SearchTest, ProgramsThatContainTheTextStayInOrder)
{
    const Names programs = {L"Calendar", L"Calculator", L"Radical", L"Word", L"cal", L"ca l"};
    EXPECT_EQ(Found(programs, L"cal"), (Names{L"cal", L"Calculator", L"Calendar", L"Radical"}));
    EXPECT_EQ(Found(programs, L"L"), (Names{L"ca l", L"cal", L"Calculator", L"Calendar", L"Radical"}));
}

TEST_F(SearchTest, CapitalsDoNotMatterOnEitherSide)
{
    EXPECT_EQ(Found({L"iNTERnet", L"Outer"}, L"InTeR"), Names{L"iNTERnet"});
    EXPECT_EQ(Found({L"Проводник", L"ЧАСЫ"}, L"ПРОВ"), Names{L"Проводник"});
    EXPECT_EQ(Found({L"Проводник", L"ЧАСЫ"}, L"часы"), Names{L"ЧАСЫ"});
    EXPECT_EQ(Found({L"CAFÉ", L"Cafe"}, L"café"), Names{L"CAFÉ"});
}

TEST_F(SearchTest, NoCharacterHasAMeaningOfItsOwn)
{
    const Names programs = {L"A&B", L"100% sure", L"A.B", L"AB", L"[x] %s", L"a b "};
    EXPECT_EQ(Found(programs, L"&"), Names{L"A&B"});
    EXPECT_EQ(Found(programs, L"%"), (Names{L"100% sure", L"[x] %s"}));
    EXPECT_EQ(Found(programs, L"."), Names{L"A.B"});
    EXPECT_EQ(Found(programs, L"*"), Names{});
    EXPECT_EQ(Found(programs, L"?"), Names{});
    EXPECT_EQ(Found(programs, L" "), (Names{L"100% sure", L"[x] %s", L"a b "}));
    EXPECT_EQ(Found({L"\xD83D\xDE00 smile"}, L"\xD83D\xDE00"), Names{L"\xD83D\xDE00 smile"});
}

TEST_F(SearchTest, OnlyTheNameIsSearched)
{
    EXPECT_EQ(Found({L"one"}, L"lnk"), Names{});
    EXPECT_EQ(Found({L"one"}, L"menu"), Names{});
    EXPECT_EQ(Found({L"one"}, L"windows"), Names{});
}

TEST_F(SearchTest, OfALongTextTwoHundredAndFiftyFiveCharactersAreRead)
{
    const std::wstring name(255, L'N');
    AddPrograms({name, L"N"});
    OnPage([&](ProgramApp& app) {
        Search(app, std::wstring(254, L'n'));
        EXPECT_EQ(Listed(app), Names{name});
        Search(app, std::wstring(255, L'n'));
        EXPECT_EQ(Listed(app), Names{name});
        Search(app, std::wstring(255, L'n') + L"and so on");
        EXPECT_EQ(Listed(app), Names{name}) << "what is behind does not count";
        Search(app, std::wstring(254, L'n') + L"x");
        EXPECT_EQ(Listed(app), Names{});
    });
}

TEST_F(SearchTest, TwoHundredAndFiftyFourCharactersCanBeTypedOrPasted)
{
    AddPrograms({L"a"});
    OnPage([&](ProgramApp& app) {
        EXPECT_EQ(SendMessageW(Box(app), EM_GETLIMITTEXT, 0, 0), 254);
        Type(app, std::wstring(300, L'x'));
        EXPECT_EQ(Text(Box(app)), std::wstring(254, L'x'));
        Search(app, L"");
        const std::wstring pasted(300, L'y');
        HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, (pasted.size() + 1) * sizeof(wchar_t));
        wcscpy(static_cast<wchar_t*>(GlobalLock(block)), pasted.c_str());
        GlobalUnlock(block);
        ASSERT_TRUE(OpenClipboard(app.MainWindow()));
        EmptyClipboard();
        EXPECT_NE(SetClipboardData(CF_UNICODETEXT, block), nullptr);
        CloseClipboard();
        SendMessageW(Box(app), WM_PASTE, 0, 0);
        EXPECT_EQ(Text(Box(app)).size(), 254u);
        EXPECT_EQ(Listed(app), Names{});
    });
}

TEST_F(SearchTest, EveryTypedLetterSearches)
{
    AddPrograms({L"abc", L"abd", L"xyz"});
    OnPage([](ProgramApp& app) {
        Type(app, L"a");
        EXPECT_EQ(Listed(app), (Names{L"abc", L"abd"}));
        ExpectSelected(app, 0);
        Type(app, L"b");
        EXPECT_EQ(Listed(app), (Names{L"abc", L"abd"}));
        ExpectSelected(app, 0);
        Type(app, L"D");
        EXPECT_EQ(Listed(app), Names{L"abd"});
        ExpectSelected(app, 0);
        Type(app, L"\b\b\b");
        EXPECT_EQ(Text(Box(app)), L"");
        EXPECT_EQ(Listed(app), (Names{L"abc", L"abd", L"xyz"}));
        ExpectSelected(app, 0);
    });
}

TEST_F(SearchTest, TheFirstRowIsSelectedWhereverTheSelectionWas)
{
    menu.AddMany(40);
    OnPage([](ProgramApp& app) {
        SendMessageW(List(app), WM_KEYDOWN, VK_END, 1);
        ASSERT_EQ(Mark(List(app)), 39);
        Search(app, L"program");
        EXPECT_EQ(Count(app), 40);
        ExpectSelected(app, 0);
        Select(app, 5);
        Search(app, L"1");
        ExpectSelected(app, 0);
        Select(app, 3);
        Search(app, L"");
        ExpectSelected(app, 0);
    });
}

TEST_F(SearchTest, AfterASearchWithoutMatchesTheNextSelectsTheFirstRowAgain)
{
    AddPrograms({L"a", L"b", L"c"});
    OnPage([](ProgramApp& app) {
        Select(app, 2);
        Search(app, L"nothing");
        EXPECT_EQ(Count(app), 0);
        EXPECT_EQ(Mark(List(app)), -1);
        EXPECT_EQ(GetFocus(), Box(app));
        Search(app, L"b");
        EXPECT_EQ(Listed(app), Names{L"b"});
        ExpectSelected(app, 0);
    });
}

TEST_F(SearchTest, TheTextOutlivesThePagesTurns)
{
    AddPrograms({L"abc", L"xyz"});
    OnPage([](ProgramApp& app) {
        Type(app, L"Xy");
        app.ActivateView(1);
        app.ActivateView(3);
        EXPECT_EQ(Text(Box(app)), L"Xy");
        EXPECT_EQ(Listed(app), Names{L"xyz"});
        ExpectSelected(app, 0);
    });
}

TEST_F(SearchTest, ASearchDoesNotScanNotEvenAfterARefresh)
{
    AddPrograms({L"abc", L"xyz"});
    OnPage([&](ProgramApp& app) {
        Run(app, CMD_REFRESH);
        menu.calls.clear();
        Search(app, L"x");
        app.ActivateView(1);
        app.ActivateView(3);
        EXPECT_TRUE(menu.calls.empty());
    });
}

TEST_F(SearchTest, OtherNewsOfTheBoxChangeNothing)
{
    AddPrograms({L"abc", L"xyz"});
    OnPage([](ProgramApp& app) {
        Select(app, 1);
        for (const WORD news : {EN_UPDATE, EN_SETFOCUS, EN_KILLFOCUS, EN_MAXTEXT, 0}) {
            SendMessageW(Page(app).Window(), WM_COMMAND, MAKEWPARAM(IDC_SEARCH, news),
                         reinterpret_cast<LPARAM>(Box(app)));
        }
        ExpectSelected(app, 1);
    });
}
