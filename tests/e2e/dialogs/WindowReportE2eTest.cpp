// The report on a task's window, as the information dialog shows it.
// device's executable: pocketpc smartphone
#include "resources/ids.h"
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

using namespace rig;

class WindowReportE2eTest : public TasksScreen
{
  protected:
    const Actor actor;

    static std::wstring Hex(HWND window)
    {
        wchar_t text[20];
        swprintf(text, 20, L"%X", static_cast<unsigned>(reinterpret_cast<ULONG_PTR>(window)));
        return text;
    }

    static bool Has(const std::wstring& report, const std::wstring& part)
    {
        return report.find(part) != std::wstring::npos;
    }

    // Of the only task of the test's.
    std::wstring ReportOnSecondRow() const
    {
        Front();
        Select(1);
        return Report();
    }
};

TEST_F(WindowReportE2eTest, AWindowWithoutOwnerIsDescribedWholly)
{
    const HWND window = actor.Make({.className = L"QvPlain", .title = L"Plain", .place = {10, 40, 110, 90}});
    const std::wstring expected = L"Executable:\r\n" + ProgramFolder() +
                                  L"\\actor.exe"
                                  L"\r\n\r\nWindow name: Plain"
                                  L"\r\nClass name: QvPlain"
                                  L"\r\nWindow handle: 0x" +
                                  Hex(window) +
                                  L"\r\n\r\nVisible: Yes"
                                  L"\r\nEnabled: Yes"
                                  L"\r\n\r\nStyles: "
                                  L"\r\n - WS_VISIBLE"
                                  L"\r\n - WS_OVERLAPPED"
                                  L"\r\n - WS_CLIPSIBLINGS"
                                  L"\r\n - WS_POPUP"
                                  L"\r\n\r\nExStyles: "
                                  L"\r\n\r\nWindow rect: (10,40) - (110,90)";
    EXPECT_EQ(expected, ReportOnSecondRow());
}

TEST_F(WindowReportE2eTest, StylesAreListedInTheirFixedOrder)
{
    const HWND window = actor.Make({.title = L"Framed",
                                    .style = WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL,
                                    .exStyle = WS_EX_CLIENTEDGE | WS_EX_STATICEDGE | WS_EX_APPWINDOW});
    ASSERT_TRUE(window);
    const std::wstring report = ReportOnSecondRow();
    EXPECT_TRUE(Has(report, L"\r\n\r\nStyles: "
                            L"\r\n - WS_VISIBLE"
                            L"\r\n - WS_GROUP"
                            L"\r\n - WS_TABSTOP"
                            L"\r\n - WS_OVERLAPPED"
                            L"\r\n - WS_CLIPSIBLINGS"
                            L"\r\n - WS_CAPTION"
                            L"\r\n - WS_BORDER"
                            L"\r\n - WS_DLGFRAME"
                            L"\r\n - WS_VSCROLL"
                            L"\r\n - WS_HSCROLL"
                            L"\r\n - WS_SYSMENU"
                            L"\r\n - WS_THICKFRAME"
                            L"\r\n - WS_MAXIMIZEBOX"
                            L"\r\n - WS_MINIMIZEBOX"
                            L"\r\n\r\nExStyles: "
                            L"\r\n - WS_EX_WINDOWEDGE"
                            L"\r\n - WS_EX_CLIENTEDGE"
                            L"\r\n - WS_EX_STATICEDGE"
                            L"\r\n - WS_EX_OVERLAPPEDWINDOW"
                            L"\r\n\r\nWindow rect: "))
        << testing::PrintToString(report);
}

TEST_F(WindowReportE2eTest, TheProgramsOwnWindowHasAReport)
{
    Front();
    Select(0);
    const std::wstring report = Report();
    EXPECT_TRUE(report.starts_with(L"Executable:\r\n" + ProgramFolder() +
                                   L"\\Quorvane.exe\r\n\r\nWindow name: Quorvane\r\n"
                                   L"Class name: QuorvaneApp\r\nWindow handle: 0x" +
                                   Hex(Main()) + L"\r\n\r\nVisible: "))
        << testing::PrintToString(report);
}

// Rows are of top owners, so owners are seen through the list of windows.
TEST_F(WindowReportE2eTest, OwnersAreNamedAndTheTopmostOnlyWhenItIsAnother)
{
    const HWND top = actor.Make(Task(L"Top"));
    const HWND second = actor.Make({.className = L"QvSecond", .title = L"Second", .owner = top});
    const HWND third = actor.Make({.title = L"", .owner = second});
    const HWND fourth = actor.Make({.title = L"Fourth", .owner = third});
    Front();
    Select(1);
    EXPECT_FALSE(Has(Report(), L"wner"));

    program->Command(commandWindowsList);
    const HWND dialog = program->WaitForDialog();
    const HWND tree = FindDescendant(dialog, L"SysTreeView32", IDC_WINDOWS_TREE);
    const auto reportOn = [&](HWND window) {
        for (const TreeItem& item : TreeItems(tree)) {
            if (item.data == reinterpret_cast<LPARAM>(window)) {
                Send(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item.handle));
            }
        }
        PostMessageW(dialog, WM_COMMAND, commandWindowInfo, 0);
        const HWND info = WaitFor([&] {
            const HWND shown = program->Dialog();
            return shown != dialog && FindDescendant(shown, L"Edit", IDC_INFORMATION_TEXT) ? shown : nullptr;
        });
        const std::wstring report = TextOf(FindDescendant(info, L"Edit", IDC_INFORMATION_TEXT));
        PostMessageW(info, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(info); }));
        return report;
    };
    const std::wstring ofSecond = reportOn(second);
    EXPECT_TRUE(Has(ofSecond, L"\r\nClass name: QvSecond\r\nWindow handle: 0x" + Hex(second) +
                                  L"\r\n\r\nOwner window: 0x" + Hex(top) +
                                  L"\r\nName: Top\r\n\r\nVisible: Yes"))
        << testing::PrintToString(ofSecond);
    const std::wstring ofThird = reportOn(third);
    EXPECT_TRUE(Has(ofThird, L"\r\n\r\nOwner window: 0x" + Hex(second) +
                                 L"\r\nName: Second\r\nTopmost owner: 0x" + Hex(top) +
                                 L"\r\nName: Top\r\n\r\nVisible: Yes"))
        << testing::PrintToString(ofThird);
    const std::wstring ofFourth = reportOn(fourth);
    EXPECT_TRUE(Has(ofFourth, L"\r\n\r\nOwner window: 0x" + Hex(third) + L"\r\nName: \r\nTopmost owner: 0x" +
                                  Hex(top) + L"\r\nName: Top\r\n\r\nVisible: Yes"))
        << testing::PrintToString(ofFourth);
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowReportE2eTest, VisibleAndEnabledAreAnswered)
{
    const HWND hidden = actor.Make({.title = L"Hidden", .style = WS_POPUP});
    HWND window = actor.Make({.title = L"Window", .owner = hidden});
    std::wstring report = ReportOnSecondRow();
    EXPECT_EQ(hidden, ReportedWindow(report));
    EXPECT_TRUE(Has(report, L"\r\n\r\nVisible: No\r\nEnabled: Yes\r\n\r\nStyles: \r\n - WS_OVERLAPPED"));
    actor.Vanish(window);

    const HWND disabled = actor.Make({.title = L"Disabled", .style = WS_POPUP | WS_VISIBLE | WS_DISABLED});
    window = actor.Make({.title = L"Window", .owner = disabled});
    report = ReportOnSecondRow();
    EXPECT_EQ(disabled, ReportedWindow(report));
    EXPECT_TRUE(Has(report, L"\r\n\r\nVisible: Yes\r\nEnabled: No\r\n\r\nStyles: \r\n - WS_VISIBLE"
                            L"\r\n - WS_DISABLED\r\n - WS_OVERLAPPED"));
}

TEST_F(WindowReportE2eTest, TitlesAreCutAtTwoHundredFiftyNineCharacters)
{
    for (size_t length : {255u, 258u, 259u, 260u, 261u, 299u}) {
        std::wstring title;
        while (title.size() < length) {
            title += static_cast<wchar_t>(L'a' + title.size() % 26);
        }
        const HWND window = actor.Make(Task(title));
        const std::wstring report = ReportOnSecondRow();
        EXPECT_EQ(window, ReportedWindow(report));
        EXPECT_TRUE(Has(report, L"\r\nWindow name: " + title.substr(0, 259) + L"\r\nClass name: "))
            << length << ": " << testing::PrintToString(report);
        actor.Vanish(window);
    }
}

TEST_F(WindowReportE2eTest, AnEmptyTitleAndALongClassNameAreShown)
{
    const std::wstring longest(255, L'c');
    const HWND untitled = actor.Make({.className = longest, .title = L""});
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = untitled}));
    EXPECT_TRUE(Has(ReportOnSecondRow(), L"\r\n\r\nWindow name: \r\nClass name: " + longest + L"\r\n"));
}

TEST_F(WindowReportE2eTest, PercentSignsQuotesAndOtherScriptsAreShownAsTheyAre)
{
    for (const wchar_t* title :
         {L"100%s %d %n %%", L"\"Quoted\" 'text' & more", L"\x0416\x0443\x043a \x4e2d\x6587 \xd83d\xde00"}) {
        const HWND window = actor.Make({.className = L"Cl%sass \"%d\" \x0416", .title = title});
        EXPECT_TRUE(Has(ReportOnSecondRow(), std::wstring(L"\r\n\r\nWindow name: ") + title +
                                                 L"\r\nClass name: Cl%sass \"%d\" \x0416\r\n"));
        actor.Vanish(window);
    }
}

TEST_F(WindowReportE2eTest, ThePlaceMayBeOffTheScreen)
{
    // Hidden, because the handheld moves the window in front to where it can be seen.
    const HWND owner = actor.Make({.title = L"Owner", .style = WS_POPUP, .place = {-120, -35, 900, 700}});
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = owner}));
    const std::wstring report = ReportOnSecondRow();
    EXPECT_TRUE(report.ends_with(L"\r\n\r\nWindow rect: (-120,-35) - (900,700)"))
        << testing::PrintToString(report);
}

TEST_F(WindowReportE2eTest, AWindowThatHasGoneGivesANoticeAndNoDialog)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    Select(1);
    actor.Vanish(a);
    ASSERT_EQ(3, ListCount(list)) << "refreshed too early";
    program->Command(commandInfo);
    const HWND notice = WaitForNotice();
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(Main(), notice, L"Window is no longer exists."));
    EXPECT_FALSE(program->Dialog());
}

TEST_F(WindowReportE2eTest, EnterAndTheLeftSoftKeyCloseIt)
{
    Front();
    for (WORD key : {VK_RETURN, VK_F1}) {
        program->Command(commandInfo);
        const HWND dialog = program->WaitForDialog();
        ASSERT_TRUE(dialog);
        ASSERT_TRUE(WaitFor([=] { return GetForegroundWindow() == dialog; }));
        PressKey(key);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(dialog); })) << key;
        EXPECT_EQ(1, program->VisiblePage());
    }
}
