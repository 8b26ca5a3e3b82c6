// The hardware keys dialogs leave nothing behind.
// profiles: pocketpc smartphone
#include "tests/ui/LeakCheck.h"
#include "tests/ui/keys/ButtonsTest.h"

class KeysLeaksTest : public ButtonsTest
{};

TEST_F(KeysLeaksTest, ADialogWithItsPickerLeavesNothing)
{
    menu.Add(L"Calculator.lnk", L"\\Windows\\calc.exe");
    AddButton(L"40C1", L"A", L"\"\\Quorvane.exe\" 193 \\A.exe*\\B.exe");
    AddButton(L"40C2", L"B", L"\\Windows\\calendar.exe");
    InProgram([&](ProgramApp& app) {
        const auto step = [&] {
            app.Later([&] {
                Opened opened = {app, app.dialogs->At(0)->Window()};
                ChooseApplication(opened, pressList, [](Opened& picker) { Run(picker, IDOK); });
                Run(opened, IDCANCEL);
            });
            if (app.PlatformKind() == Platform::Smartphone) {
                CDialogKeys_SP::Show(app.startPrograms, homeKey);
            } else {
                CDialogKeys::Show(app.startPrograms);
            }
        };
        ExpectNothingLeft(50, step, [&] {
            enumWindows.calls.clear();
            sleep.calls.clear();
            registerClass.calls.clear();
        });
    });
}
