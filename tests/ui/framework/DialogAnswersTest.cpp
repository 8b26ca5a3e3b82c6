// What a dialog answers its initialisation: whether it has come up.
#include "resources/ids.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestDialog.h"

class DialogAnswersTest : public UiTest
{
  protected:
    inline static DLGPROC own;
    inline static std::vector<INT_PTR> answers;

    static INT_PTR CALLBACK Noting(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const INT_PTR answer = own(dialog, message, wParam, lParam);
        if (message == WM_INITDIALOG) {
            answers.push_back(answer);
        }
        return answer;
    }

    // The answers to WM_INITDIALOG of a dialog that ends as soon as it is open.
    static std::vector<INT_PTR> Answers(bool fullScreen)
    {
        answers.clear();
        InApp([=](TestApp&) {
            const SPY(CreateDialogIndirectParamW)
                create([&](HINSTANCE instance, const DLGTEMPLATE* dialogTemplate, HWND owner,
                           DLGPROC procedure, LPARAM parameter) {
                    own = procedure;
                    return create.Real(instance, dialogTemplate, owner, Noting, parameter);
                });
            TestDialog dialog("dialog");
            dialog.onInit = [&] { dialog.End(0); };
            dialog.StartDialog(IDD_INFORMATION, IDB_INFORMATION, 0, fullScreen);
        });
        return answers;
    }
};

using AnswerList = std::vector<INT_PTR>;

TEST_F(DialogAnswersTest, OneWhenItIsOpen)
{
    EXPECT_EQ(Answers(true), AnswerList{1});
    ForgetClasses();
    EXPECT_EQ(Answers(false), AnswerList{1});
}

TEST_F(DialogAnswersTest, ZeroWhenTheShellRefusesToSizeIt)
{
    const SPY(SHInitDialog) init([](SHINITDLGINFO*) { return FALSE; });
    EXPECT_EQ(Answers(true), AnswerList{0});
    EXPECT_EQ(init.calls.size(), 1U);
}

TEST_F(DialogAnswersTest, ZeroWhenItGetsNoSoftKeys)
{
    const SPY(SHCreateMenuBar) bar([](SHMENUBARINFO*) { return FALSE; });
    EXPECT_EQ(Answers(true), AnswerList{0});
    ForgetClasses();
    EXPECT_EQ(Answers(false), AnswerList{0});
}
