// The hardware keys dialogs and the picker above them, when the program ends or shows a page below.
// profiles: pocketpc smartphone
#include "tests/ui/keys/ButtonsTest.h"

class KeysEndTest : public ButtonsTest
{
  protected:
    KeysEndTest()
    {
        menu.Add(L"Calculator.lnk", L"\\Windows\\calc.exe");
        AddButton(L"40C1", L"A", L"\\Windows\\calendar.exe");
    }
    // The dialog of this handheld with the picker above it; the step runs in the picker's loop and has to end
    // both.
    void UnderThePicker(const Step& step)
    {
        const auto open = [&](Opened& opened) {
            bool ran = false;
            opened.app.Later([&] {
                ran = true;
                ASSERT_EQ(opened.app.dialogs->Count(), 2u);
                step(opened);
            });
            Choose(opened, pressList, 2);
            EXPECT_TRUE(ran);
        };
        InProgram([&](ProgramApp& app) {
            const bool isSmartphone = app.PlatformKind() == Platform::Smartphone;
            app.Later([&] {
                ASSERT_EQ(app.dialogs->Count(), 1u);
                Opened opened = {app, app.dialogs->At(0)->Window()};
                open(opened);
            });
            const int result = isSmartphone ? CDialogKeys_SP::Show(app.startPrograms, homeKey)
                                            : CDialogKeys::Show(app.startPrograms);
            EXPECT_NE(result, IDOK);
        });
        EXPECT_TRUE(buttons.writes.empty());
        EXPECT_EQ(homeKey.command, 0u);
    }
};

// In a guarded heap a record that has gone ends the program when it is written.
TEST_F(KeysEndTest, TheProgramEndsUnderThePicker)
{
    UnderThePicker([](Opened& opened) {
        SendMessageW(opened.app.MainWindow(), WM_CLOSE, 0, 0);
        EXPECT_FALSE(opened.app.HasMainWindow());
    });
}

TEST_F(KeysEndTest, APostedCloseEndsBothDialogs)
{
    UnderThePicker([](Opened& opened) { PostMessageW(opened.app.MainWindow(), WM_CLOSE, 0, 0); });
}

TEST_F(KeysEndTest, ShowingAPageEndsBothDialogsAndBindsNothing)
{
    UnderThePicker([](Opened& opened) {
        opened.app.ShowPage(4);
        EXPECT_EQ(opened.app.ActiveView()->Id(), 4);
    });
}

TEST_F(KeysEndTest, ARescanUnderTheDialogsDoesNoHarm)
{
    UnderThePicker([&](Opened& opened) {
        menu.Remove(L"Calculator.lnk");
        opened.app.startPrograms.Refill(opened.app.MainWindow());
        HWND picker = opened.app.dialogs->At(1)->Window();
        SendMessageW(picker, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(IsWindow(picker)) << "there is nothing to choose any more";
        opened.app.EndAllDialogs();
    });
}
