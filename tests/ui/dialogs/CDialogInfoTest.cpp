// The information dialog.
#include "dialogs/CDialogInfo.h"
#include "resources/ids.h"
#include "tests/support/TestHeap.h"
#include "tests/ui/ProgramTest.h"

class CDialogInfoTest : public ProgramTest
{
  protected:
    using Step = std::function<void(HWND dialog, HWND edit)>;
    SPY(HideCaret) hideCaret;

    // Shows the text; the steps run inside the dialog's loop, one after the other, and the last must end it.
    // The result is the dialog's.
    int Show(const std::wstring& text, const std::vector<Step>& steps)
    {
        int result = -99;
        size_t done = 0;
        InProgram([&](ProgramApp& app) {
            for (const Step& step : steps) {
                app.Later([&app, &step, &done] {
                    ASSERT_EQ(app.dialogs->Count(), 1u);
                    HWND dialog = app.dialogs->At(0)->Window();
                    step(dialog, GetDlgItem(dialog, IDC_INFORMATION_TEXT));
                    done++;
                });
            }
            const CStr shown(text.c_str());
            result = CDialogInfo::Show(shown);
            EXPECT_EQ(app.dialogs->Count(), 0u);
            EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        });
        EXPECT_EQ(done, steps.size());
        return result;
    }

    int ResultOf(WPARAM command)
    {
        return Show(L"text", {[=](HWND dialog, HWND) { SendMessageW(dialog, WM_COMMAND, command, 0); }});
    }

    static void End(HWND dialog, HWND) { SendMessageW(dialog, WM_COMMAND, 1, 0); }

    static std::pair<DWORD, DWORD> SelectionOf(HWND edit)
    {
        DWORD from = 99;
        DWORD to = 99;
        SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
        return {from, to};
    }

    static LRESULT FirstLine(HWND edit) { return SendMessageW(edit, EM_GETFIRSTVISIBLELINE, 0, 0); }
};

static const std::pair<DWORD, DWORD> nothing = {0, 0};

static std::wstring Lines(int count)
{
    std::wstring text;
    for (int i = 0; i < count; i++) {
        text += L"line " + std::to_wstring(i) + L"\r\n";
    }
    return text;
}

TEST_F(CDialogInfoTest, ShowsTheTextUnderItsTitleWithNothingSelected)
{
    Show(L"one\r\ntwo", {[](HWND dialog, HWND edit) {
             EXPECT_EQ(Text(dialog), L"Information");
             EXPECT_EQ(Text(edit), L"one\r\ntwo");
             EXPECT_EQ(SelectionOf(edit), nothing);
             EXPECT_TRUE(IsWindowVisible(edit));
             EXPECT_EQ(GetWindowLongPtrW(edit, GWL_STYLE) & (ES_READONLY | ES_MULTILINE),
                       ES_READONLY | ES_MULTILINE);
             End(dialog, edit);
         }});
}

TEST_F(CDialogInfoTest, OkActionAndEnterAcceptAndCancelCancels)
{
    EXPECT_EQ(ResultOf(1), 1);
    EXPECT_EQ(ResultOf(6), 1);
    EXPECT_EQ(ResultOf(121), 1);
    EXPECT_EQ(ResultOf(2), 2);
}

TEST_F(CDialogInfoTest, OtherCommandsLeaveItOpen)
{
    Show(Lines(100),
         {[](HWND dialog, HWND edit) {
              for (const WPARAM command : {0, 3, 5, 110, 112, 113, 117, 118, 119, 122, CMD_EXIT, 0xFFFF}) {
                  SendMessageW(dialog, WM_COMMAND, command, 0);
              }
              EXPECT_EQ(FirstLine(edit), 0);
          },
          [](HWND dialog, HWND edit) {
              EXPECT_TRUE(IsWindow(dialog));
              EXPECT_EQ(SelectionOf(edit), nothing);
              End(dialog, edit);
          }});
}

TEST_F(CDialogInfoTest, DownAndUpScrollByALine)
{
    Show(Lines(100), {[](HWND dialog, HWND edit) {
             SendMessageW(dialog, WM_COMMAND, 116, 0);
             EXPECT_EQ(FirstLine(edit), 1);
             SendMessageW(dialog, WM_COMMAND, 116, 0);
             EXPECT_EQ(FirstLine(edit), 2);
             SendMessageW(dialog, WM_COMMAND, 120, 0);
             EXPECT_EQ(FirstLine(edit), 1);
             SendMessageW(dialog, WM_COMMAND, 120, 0);
             SendMessageW(dialog, WM_COMMAND, 120, 0);
             EXPECT_EQ(FirstLine(edit), 0);
             End(dialog, edit);
         }});
}

TEST_F(CDialogInfoTest, ItsKeysAreCommands)
{
    const auto press = [](WPARAM key) {
        return [=](HWND, HWND edit) { PostMessageW(edit, WM_KEYDOWN, key, 1); };
    };
    const struct
    {
        WPARAM key;
        int result;
    } keys[] = {{VK_RETURN, 1}, {VK_ESCAPE, 2}};
    for (const auto& each : keys) {
        EXPECT_EQ(Show(L"text", {press(each.key)}), each.result) << each.key;
    }
}

TEST_F(CDialogInfoTest, TheTextFillsTheDialogWheneverItIsResized)
{
    Show(Lines(100), {[](HWND dialog, HWND edit) {
             for (const SIZE size : {SIZE{200, 150}, SIZE{0, 0}, SIZE{320, 188}}) {
                 SendMessageW(edit, EM_SETSEL, 3, 9);
                 MoveWindow(dialog, 0, 26, size.cx, size.cy, TRUE);
                 RECT rect = WindowRect(edit);
                 MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
                 const SIZE client = ClientSize(dialog);
                 EXPECT_EQ(rect, (RECT{0, 0, client.cx, client.cy}));
                 EXPECT_EQ(SelectionOf(edit), nothing);
             }
             End(dialog, edit);
         }});
}

TEST_F(CDialogInfoTest, TheCaretIsHiddenAfterAResize)
{
    size_t before = 0;
    Show(L"text", {[&](HWND dialog, HWND edit) {
             before = hideCaret.calls.size();
             MoveWindow(dialog, 0, 26, 150, 150, TRUE);
             ASSERT_GT(hideCaret.calls.size(), before);
             EXPECT_EQ(std::get<0>(hideCaret.calls.back()), edit);
             End(dialog, edit);
         }});
}

TEST_F(CDialogInfoTest, AnyTextIsShownLetterForLetter)
{
    for (const std::wstring& text :
         {std::wstring(), std::wstring(L"100% & \"quoted\" %s %n"), std::wstring(L"Проводник メモ帳 עברית"),
          std::wstring(5000, L'x'), Lines(1000)}) {
        Show(text, {[&](HWND dialog, HWND edit) {
                 EXPECT_EQ(Text(edit).size(), text.size());
                 EXPECT_TRUE(Text(edit) == text);
                 EXPECT_EQ(SelectionOf(edit), nothing);
                 End(dialog, edit);
             }});
    }
}

TEST_F(CDialogInfoTest, ALongTextBeginsAtItsStart)
{
    Show(Lines(500), {[](HWND dialog, HWND edit) {
             SetFocus(edit);
             EXPECT_EQ(FirstLine(edit), 0);
             EXPECT_EQ(SelectionOf(edit), nothing);
             End(dialog, edit);
         }});
}

TEST_F(CDialogInfoTest, ShowingLeavesNothingAllocated)
{
    InProgram([&](ProgramApp& app) {
        const CStr text(L"the caller's");
        SPY(ShowWindow) show;
        show.instead = [&](HWND window, int command) {
            PostMessageW(window, WM_COMMAND, 2, 0);
            return show.Real(window, command);
        };
        show.calls.reserve(100); // the test's own blocks are not counted
        hideCaret.calls.reserve(100);
        const auto run = [&] { EXPECT_EQ(CDialogInfo::Show(text), 2); };
        run();
        const size_t before = LiveBlocks();
        for (int i = 0; i < 3; i++) {
            run();
        }
        EXPECT_EQ(LiveBlocks(), before);
        EXPECT_STREQ(text.Buffer(), L"the caller's");
        EXPECT_EQ(app.dialogs->Count(), 0u);
    });
}
