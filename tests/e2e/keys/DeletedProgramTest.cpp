// A button whose program is deleted after it was bound: a press does nothing, and the button is the program's
// again when that is back.
#include "rig/Actor.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/keys/KeysScreen.h"
#include "tests/support/TempFolder.h"

using namespace rig;

class DeletedProgramTest : public KeysScreen
{
  protected:
    const TempFolder folder;
    const std::wstring path = folder.Path(L"Bound.exe");
    const Actor actor;
    HWND front = nullptr;

    void SetUp() override
    {
        Install();
        AddButton(L"40C1", L"Button 1", OwnCommand(Tail()), L"", 0);
        KeysScreen::SetUp();
        front = actor.Make({.title = L"In front"});
        ASSERT_TRUE(Raise(front));
    }

    std::wstring Tail() const { return L"193 " + path + L"*1"; }
    void Install() const
    {
        ASSERT_TRUE(CopyFileW((ProgramFolder() + L"\\actor.exe").c_str(), path.c_str(), FALSE));
    }

    static HWND Started()
    {
        for (HWND window = nullptr;
             (window = FindWindowExW(HWND_MESSAGE, window, actor::controlClass, nullptr)) != nullptr;) {
            if (ExecutableOf(ProcessOf(window)) == L"Bound.exe") {
                return window;
            }
        }
        return nullptr;
    }
    static void ExpectStarts()
    {
        PressKey(VK_F5);
        const HWND started = WaitFor([] { return Started(); });
        ASSERT_TRUE(started) << "it is not started";
        const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, ProcessOf(started));
        TerminateProcess(process, 0);
        EXPECT_EQ(WaitForSingleObject(process, 10000), WAIT_OBJECT_0);
        CloseHandle(process);
    }
    void Delete() const
    {
        ASSERT_TRUE(WaitFor([&] { return DeleteFileW(path.c_str()); }));
    }
};

TEST_F(DeletedProgramTest, APressDoesNothingUntilItIsBack)
{
    ASSERT_NO_FATAL_FAILURE(ExpectStarts());
    Delete();
    // As the shell does for the button, and until it is handed over.
    const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", Tail());
    EXPECT_EQ(second.ExitCode(patience), 0u);
    Send(main, WM_NULL);
    Send(main, WM_NULL);
    EXPECT_TRUE(InFront(front));
    EXPECT_FALSE(program->Notice());
    EXPECT_FALSE(FindTopWindow({.className = L"#32770"})) << "somebody tells of it";
    Install();
    ExpectStarts();
}

TEST_F(DeletedProgramTest, TheDialogKeepsIt)
{
    Delete();
    ASSERT_TRUE(ComeToFront());
    const HWND dialog = OpenByMenu();
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(Shows(GetDlgItem(dialog, IDC_PRESS_ACTION), L"Bound"));
    ASSERT_TRUE(Close(dialog, VK_F1));
    Install();
    ASSERT_TRUE(Raise(front));
    ExpectStarts();
}
