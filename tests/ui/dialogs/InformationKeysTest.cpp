// The keys of the information dialog, as a user presses them.
#include "dialogs/CDialogInfo.h"
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

class InformationKeysTest : public ProgramTest
{
  protected:
    struct Shown
    {
        HWND edit;
        LRESULT firstLine;
        DWORD caretAt;
        HWND focus;
    };

    // Presses the keys in a dialog with a text of a hundred lines, looks at it, and ends it with cancel.
    Shown After(const std::vector<WPARAM>& keys)
    {
        Shown shown = {};
        InProgram([&](ProgramApp& app) {
            std::wstring text;
            for (int i = 0; i < 100; i++) {
                text += L"line\r\n";
            }
            HWND dialog = nullptr;
            const auto look = [&] {
                ASSERT_TRUE(IsWindow(dialog)) << "it has been closed";
                DWORD end = 0;
                SendMessageW(shown.edit, EM_GETSEL, reinterpret_cast<WPARAM>(&shown.caretAt),
                             reinterpret_cast<LPARAM>(&end));
                EXPECT_EQ(shown.caretAt, end) << "something is selected";
                shown.firstLine = SendMessageW(shown.edit, EM_GETFIRSTVISIBLELINE, 0, 0);
                shown.focus = GetFocus();
                SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            };
            app.Later([&] {
                ASSERT_EQ(app.dialogs->Count(), 1u);
                dialog = app.dialogs->At(0)->Window();
                shown.edit = GetDlgItem(dialog, IDC_INFORMATION_TEXT);
                SetFocus(shown.edit);
                for (const WPARAM key : keys) {
                    PostMessageW(shown.edit, WM_KEYDOWN, key, 1);
                }
                app.Later(look);
            });
            const CStr report(text.c_str());
            EXPECT_EQ(CDialogInfo::Show(report), IDCANCEL);
        });
        return shown;
    }
};

TEST_F(InformationKeysTest, DownAndUpScrollByALineAndLeaveTheCaret)
{
    const Shown down = After({VK_DOWN, VK_DOWN, VK_DOWN});
    EXPECT_EQ(down.firstLine, 3);
    EXPECT_EQ(down.caretAt, 0u);
    const Shown up = After({VK_DOWN, VK_DOWN, VK_DOWN, VK_UP});
    EXPECT_EQ(up.firstLine, 2);
    EXPECT_EQ(up.caretAt, 0u);
}

TEST_F(InformationKeysTest, LeftRightAndTabDoNothing)
{
    for (const WPARAM key : {VK_RIGHT, VK_LEFT, VK_TAB}) {
        const Shown shown = After({VK_DOWN, key});
        EXPECT_EQ(shown.firstLine, 1) << key;
        EXPECT_EQ(shown.caretAt, 0u) << key;
        EXPECT_EQ(shown.focus, shown.edit) << key;
    }
}

TEST_F(InformationKeysTest, EnterIsACommandOfItsOwn)
{
    InProgram([](ProgramApp& app) {
        std::vector<WPARAM> commands;
        const SPY(TranslateAcceleratorW) accelerate([&](HWND window, HACCEL table, MSG* message) {
            const int taken = accelerate.Real(window, table, message);
            if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN) {
                commands.push_back(static_cast<WPARAM>(taken));
            }
            return taken;
        });
        app.Later([&] {
            HWND dialog = app.dialogs->At(0)->Window();
            PostMessageW(GetDlgItem(dialog, IDC_INFORMATION_TEXT), WM_KEYDOWN, VK_RETURN, 1);
        });
        const CStr report(L"text");
        EXPECT_EQ(CDialogInfo::Show(report), IDOK);
        EXPECT_EQ(commands, std::vector<WPARAM>{1}) << "the dialog's accelerators have not taken it";
    });
}
