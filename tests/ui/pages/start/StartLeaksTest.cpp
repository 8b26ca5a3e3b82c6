// What a long life of the launcher page and the picker leaves behind: nothing but the font that is to stay.
#include "tests/ui/pages/start/StartLeaks.h"
#include "dialogs/CDialogSelectApp.h"

class StartLeaksTest : public StartLeaks
{};

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
