// What the tests of the hardware keys in the whole program start from.
#include "tests/ui/app/KeyProgramTest.h"

bool KeyProgram::CheckPrevInstance(HWND existingWindow, const wchar_t* line)
{
    platform = device;
    return ProgramApp::CheckPrevInstance(existingWindow, line);
}

bool KeyProgram::OnCreate()
{
    created();
    return ProgramApp::OnCreate();
}

LRESULT KeyProgram::HandOver(const SKeyCommand& command)
{
    COPYDATASTRUCT copy = {1, sizeof command, const_cast<SKeyCommand*>(&command)};
    return SendMessageW(mainWindow, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy));
}

void KeyProgram::HotKey(UINT vk, UINT modifiers)
{
    SendMessageW(mainWindow, WM_HOTKEY, 1, static_cast<LPARAM>(MAKELPARAM(modifiers, vk)));
}

void KeyProgram::Timer(WPARAM timer)
{
    SendMessageW(mainWindow, WM_TIMER, timer, 0);
}

static bool IsKeyTimer(UINT_PTR timer)
{
    return timer == 5 || timer == 6;
}

KeyProgramTest::KeyProgramTest()
{
    keyState.instead = [this](int vk) {
        asked.push_back(vk);
        return static_cast<SHORT>(down.contains(vk) ? 0x8000 : 0);
    };
    setTimer.instead = [this](HWND window, UINT_PTR timer, UINT ms, TIMERPROC procedure) {
        if (!IsKeyTimer(timer)) {
            otherTimers.push_back(ms);
            return setTimer.Real(window, timer, ms, procedure);
        }
        EXPECT_EQ(procedure, nullptr);
        events.push_back("timer " + std::to_string(timer) + " " + std::to_string(ms));
        return timer;
    };
    killTimer.instead = [this](HWND window, UINT_PTR timer) {
        if (!IsKeyTimer(timer)) {
            return killTimer.Real(window, timer);
        }
        events.push_back("kill " + std::to_string(timer));
        return TRUE;
    };
    post.instead = [this](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == 32868) {
            EXPECT_NE(window, nullptr);
            EXPECT_EQ(GetAncestor(window, GA_ROOT), window);
            events.push_back("action " + std::to_string(wParam) + " " + std::to_string(lParam));
            if (!performs) {
                return TRUE;
            }
        }
        return post.Real(window, message, wParam, lParam);
    };
    sleep.instead = [this](DWORD ms) { events.push_back("sleep " + std::to_string(ms)); };
}

std::vector<std::string> KeyProgramTest::TakeEvents()
{
    std::vector<std::string> taken;
    taken.swap(events);
    return taken;
}

void KeyProgramTest::On(Platform device, const std::function<void(KeyProgram&)>& test,
                        const wchar_t* commandLine)
{
    KeyProgram app;
    app.device = device;
    app.commandLine = commandLine;
    bool ran = false;
    app.body = [&] {
        ran = true;
        test(app);
    };
    app.created = [&] { claims.expectedWindow = app.MainWindow(); };
    EXPECT_EQ(Start(app), 0);
    EXPECT_TRUE(ran);
}
