// What a long life of the launcher page and the picker leaves behind: nothing but the font that is to stay.
#include "dialogs/CDialogSelectApp.h"
#include "tests/ui/LeakCheck.h"
#include "tests/ui/pages/start/StartPageTest.h"

class StartLeaksTest : public StartPageTest
{
  protected:
    void ExpectNothingLeft(int times, const std::function<void()>& step, size_t keptBySystem = 0)
    {
        const auto forget = [this] {
            enumWindows.calls.clear();
            sleep.calls.clear();
            registerClass.calls.clear();
            menu.calls.clear();
            fonts.Forget();
        };
        ::ExpectNothingLeft(times, step, forget, keptBySystem);
        EXPECT_EQ(menu.items, 0);
        EXPECT_EQ(menu.allocators, 0);
        EXPECT_EQ(menu.searches, 0);
    }
};

TEST_F(StartLeaksTest, AThousandSearchesLeaveNothing)
{
    menu.AddMany(20);
    OnPage([&](ProgramApp& app) {
        int turn = 0;
        const wchar_t* const searches[] = {L"p", L"program 1", L"nothing", L""};
        ExpectNothingLeft(1000, [&] { Search(app, searches[turn++ % 4]); });
        EXPECT_EQ(Count(app), turn % 4 == 3 ? 0 : turn % 4 == 2 ? 11 : 20);
    });
}

// The table of the well-known programs grows on purpose: its block is the same or another one.
TEST_F(StartLeaksTest, AHundredRefreshesLeaveNothing)
{
    menu.AddMany(20);
    OnPage([&](ProgramApp& app) {
        ExpectNothingLeft(100, [&] {
            menu.Add(L"Another.lnk");
            Run(app, CMD_REFRESH);
            menu.Remove(L"Another.lnk");
            Run(app, CMD_REFRESH);
        });
        for (HRESULT* answer : {&menu.allocatorAnswer, &menu.locationAnswer}) {
            ExpectNothingLeft(100, [&] {
                *answer = *answer == S_OK ? E_FAIL : S_OK;
                Run(app, CMD_REFRESH);
            });
            *answer = S_OK;
        }
    });
}

TEST_F(StartLeaksTest, TurnsToThePageLeaveNothing)
{
    menu.AddMany(5);
    OnPage([&](ProgramApp& app) {
        ExpectNothingLeft(50, [&] {
            app.ActivateView(1);
            app.ActivateView(3);
        });
    });
}

TEST_F(StartLeaksTest, ReportsLeaveNothing)
{
    menu.AddMany(1);
    OnPage([&](ProgramApp& app) {
        // Wine 8.0's edit control keeps a block for each text that is longer than a few hundred characters.
        ExpectNothingLeft(
            50,
            [&] {
                app.Later([&] { app.EndAllDialogs(); });
                Run(app, 0x801F);
            },
            1);
    });
}

TEST_F(StartLeaksTest, PickersLeaveNothing)
{
    menu.AddMany(5);
    OnPage([&](ProgramApp& app) {
        for (const UINT command : {IDOK, IDCANCEL}) {
            ExpectNothingLeft(50, [&] {
                app.Later([&] { SendMessageW(app.dialogs->At(0)->Window(), WM_COMMAND, command, 0); });
                CStr path;
                CDialogSelectApp::Pick(app.startPrograms, path);
                EXPECT_EQ(path.IsEmpty(), command == IDCANCEL);
            });
        }
    });
}

TEST_F(StartLeaksTest, OpenMenusOfTheSearchBoxLeaveNothing)
{
    SPY(SHRecognizeGesture) recognize;
    recognize.instead = [&](SHRGINFO*) -> DWORD {
        recognize.calls.clear();
        return 1000;
    };
    OnPage([&](ProgramApp& app) {
        SPY(TrackPopupMenuEx) track;
        track.instead = [&](HMENU, UINT, int, int, HWND, TPMPARAMS*) -> BOOL {
            track.calls.clear();
            return 0;
        };
        ExpectNothingLeft(100, [&] { SendMessageW(Box(app), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1)); });
    });
}

TEST_F(StartLeaksTest, TheEndOfThePageLeavesOnlyTheUnderlinedFont)
{
    menu.AddMany(5);
    ExpectNothingLeft(50, [&] {
        OnPage([](ProgramApp& app) { EXPECT_EQ(Count(app), 5); });
        EXPECT_EQ(fonts.underlined.size(), 1u);
        EXPECT_TRUE(fonts.Delete());
    });
}
