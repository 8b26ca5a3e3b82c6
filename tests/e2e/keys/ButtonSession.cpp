// ButtonSession: the program running in front, and a shell that starts it again for a hardware button.
#include "tests/e2e/keys/ButtonSession.h"

#include "tests/e2e/ScreenText.h"

using namespace rig;

ButtonSession::~ButtonSession()
{
    if (GetAsyncKeyState(buttonKey) & 0x8000) {
        KeyUp(buttonKey);
    }
}

void ButtonSession::Button(const std::wstring& commandLine)
{
    const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", commandLine);
    ASSERT_EQ(0u, second.ExitCode(patience)) << "the second instance does not end";
}

void ButtonSession::ShowPage(int page, int command) const
{
    program->Command(command);
    ASSERT_TRUE(program->WaitForPage(page));
}

void ButtonSession::ExpectNotice(const std::wstring& text) const
{
    const HWND notice = WaitFor([&] { return program->Notice(); });
    ASSERT_TRUE(notice) << "there is no notice";
    EXPECT_TRUE(NoticeSays(main, notice, text)) << testing::PrintToString(text);
}

void ButtonSession::ExpectPage(int page) const
{
    EXPECT_TRUE(program->WaitForPage(page));
    ExpectKeysReachThePage(page);
}
