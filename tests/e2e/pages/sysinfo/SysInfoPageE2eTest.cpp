// The system information page in use: its neighbours, its menu, its keys, and how it follows what changes.
// profiles: pocketpc smartphone
// device's executable: smartphone
#include "rig/Controls.h"
#include "rig/MenuTwin.h"
#include "tests/e2e/pages/sysinfo/GaugeSession.h"

using namespace rig;

static const std::vector<MenuLine> pageMenu = {{L"Memory information"},
                                               {L"Battery information"},
                                               {},
                                               {L"Refresh"},
                                               {},
                                               {L"View", false, true},
                                               {},
                                               {L"More", false, true},
                                               {},
                                               {L"Exit"}};

class SysInfoPageE2eTest : public GaugeSession
{
  protected:
    // A line of the menu, counted from 1 without separators, by keys.
    void Choose(int line) const
    {
        ASSERT_TRUE(PressMenuKey());
        ParkStylus();
        MenuKeys(VK_HOME);
        MenuKeys(VK_DOWN, line - 1);
        MenuKeys(VK_RETURN);
    }

    // By the menu, then closed again.
    std::wstring ChosenReport(int line) const
    {
        Choose(line);
        const HWND dialog = program->WaitForDialog();
        const std::wstring report = ReportText(dialog);
        Send(dialog, WM_COMMAND, IDOK);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(dialog); }));
        return report;
    }

    POINT MiddleOf(int row) const
    {
        const RECT place = ListRowOnScreen(list, row).value_or(RECT{});
        return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    }

    void ExpectNothingHappened(const Picture& before) const
    {
        ExpectKeysReachThePage(SysInfoPage); // the keys and taps before these are handled then
        EXPECT_FALSE(program->Dialog());
        EXPECT_FALSE(program->Notice());
        ParkStylus();
        EXPECT_TRUE(ListPicture() == before) << "the list looks different";
    }
};

TEST_F(SysInfoPageE2eTest, ItsNeighboursAreTheStartPageAndTheProcesses)
{
    Show(L"", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    const std::pair<int, int> commands[] = {{CMD_PREVIOUS_PAGE, LauncherPage}, {CMD_NEXT_PAGE, ProcsPage}};
    for (const auto& [command, page] : commands) {
        program->Command(command);
        EXPECT_TRUE(program->WaitForPage(page));
        program->Command(ShowSysInfoCommand);
        ASSERT_TRUE(program->WaitForPage(SysInfoPage));
    }
    PressKey(VK_LEFT);
    EXPECT_TRUE(program->WaitForPage(LauncherPage));
    PressKey(VK_RIGHT, 2);
    EXPECT_TRUE(program->WaitForPage(ProcsPage));
}

TEST_F(SysInfoPageE2eTest, TheMenuLooksAsItShould)
{
    Show(L"", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    const RECT bar = ScreenRectOf(BarOf(main));
    const MenuTwin twin(pageMenu, {bar.right, bar.top}, TPM_RIGHTALIGN | TPM_BOTTOMALIGN);
    ASSERT_GT(twin.Look().Colours(), 1) << "the expected menu does not open";
    ASSERT_TRUE(PressMenuKey());
    ParkStylus();
    Picture::OfSettledScreen();
    const RECT area = ScreenRectOf(OpenMenu());
    EXPECT_TRUE(EqualRect(&twin.Area(), &area));
    EXPECT_TRUE(Picture::OfScreen(twin.Area()) == twin.Look());
    PressKey(VK_ESCAPE);
    ExpectKeysReachThePage(SysInfoPage);
}

TEST_F(SysInfoPageE2eTest, TheMenuShowsTheReportsAndRefreshes)
{
    MakeCard(L"Card");
    Show(L"Card", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(4));
    EXPECT_TRUE(ChosenReport(1).starts_with(L"PHYSICAL MEMORY:\r\nTotal: 64 MB\r\n"));
    EXPECT_TRUE(ChosenReport(2).starts_with(L"AC POWER STATUS:\r\n Online (Charging)\r\n"));
    RemoveCard(L"Card");
    Choose(3);
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == 3; }, std::chrono::seconds(3)));
    ExpectGauge(2, plainBattery);
}

TEST_F(SysInfoPageE2eTest, ACardThatGoesAndComesIsFollowed)
{
    MakeCard(L"First");
    MakeCard(L"Second");
    Show(L"First, Second, Third, \"\"", std::wstring(plainFigures) + L"[storage]\n\\Second = 2048, 1024\n");
    ASSERT_FALSE(HasFatalFailure());
    const Gauge second = {L"Second", 50, L"1 KB", L"1 KB "};
    ASSERT_TRUE(HasRows(5));
    ExpectGauge(3, second);
    RemoveCard(L"First");
    program->Command(RefreshCommand);
    ASSERT_TRUE(HasRows(4));
    ExpectGauge(2, second);
    ExpectGauge(3, plainBattery);
    // One that was not there yet, while another page is shown.
    PressKey(VK_RIGHT);
    ASSERT_TRUE(program->WaitForPage(ProcsPage));
    MakeCard(L"Third");
    PressKey(VK_LEFT);
    ASSERT_TRUE(HasRows(5));
    ExpectGauge(2, second);
}

TEST_F(SysInfoPageE2eTest, ThereIsARowForWhatThereIs)
{
    Show(L"", L"[battery]\npresent = no\n");
    ASSERT_FALSE(HasFatalFailure());
    EXPECT_TRUE(HasRows(2));
    for (const wchar_t* card : {L"One", L"Two", L"Three"}) {
        MakeCard(card);
    }
    Show(L"One, Two, Three", L"[battery]\npercent = 10\n");
    ASSERT_FALSE(HasFatalFailure());
    EXPECT_TRUE(HasRows(6));
}

TEST_F(SysInfoPageE2eTest, TheSelectionIsNotSeen)
{
    Show(L"", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(3));
    ASSERT_EQ(0, ListSelected(list));
    ParkStylus();
    const Picture before = ListPicture();
    Tap(MiddleOf(1));
    EXPECT_TRUE(WaitFor([&] { return ListSelected(list) == 1 && ListMark(list) == 1; }));
    ParkStylus();
    EXPECT_TRUE(ListPicture() == before);
    ExpectGauge(0, plainMemory);
    ExpectGauge(1, plainStorage);
}

TEST_F(SysInfoPageE2eTest, EnterAndADoubleTapDoNothing)
{
    Show(L"", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(3));
    ParkStylus();
    const Picture before = ListPicture();
    PressKey(VK_RETURN);
    ExpectNothingHappened(before);
    DoubleTap(MiddleOf(1));
    ExpectNothingHappened(before);
}

TEST_F(SysInfoPageE2eTest, UpAndDownScrollWhenThereAreMoreGaugesThanFit)
{
    std::wstring cards;
    for (int number = 10; number < 22; number++) {
        const std::wstring card = L"Card " + std::to_wstring(number);
        MakeCard(card.c_str());
        cards += card + L", ";
    }
    Show(cards, plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(15));
    const int page = ListRowsPerPage(list);
    ASSERT_LT(page, 14);
    for (int top = 1; top <= 15 - page; top++) {
        PressKey(VK_DOWN);
        EXPECT_TRUE(WaitFor([&] { return ListTopRow(list) == top; })) << top;
        EXPECT_EQ(top + page - 1, ListSelected(list));
        EXPECT_EQ(top + page - 1, ListMark(list));
    }
    ExpectGauge(14, plainBattery);
    PressKey(VK_DOWN); // no more
    for (int top = 14 - page; top >= 0; top--) {
        PressKey(VK_UP);
        EXPECT_TRUE(WaitFor([&] { return ListTopRow(list) == top; })) << top;
        EXPECT_EQ(top, ListSelected(list));
        EXPECT_EQ(top, ListMark(list));
    }
    ExpectGauge(0, plainMemory);
}

TEST_F(SysInfoPageE2eTest, UpAndDownDoNothingWhenAllGaugesFit)
{
    Show(L"", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(3));
    ParkStylus();
    const Picture before = ListPicture();
    PressKey(VK_DOWN);
    PressKey(VK_UP);
    PressKey(VK_DOWN);
    ExpectNothingHappened(before);
    EXPECT_EQ(0, ListSelected(list));
}
