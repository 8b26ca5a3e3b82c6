// The fixture of the tests of the whole program.
#include "tests/ui/ProgramTest.h"

#include "framework/CVireoInfowin.h"
#include "resources/ids.h"

int ProgramApp::Run()
{
    return CApp::Run(IDS_TITLE, IDI_PROGRAM, IDA_PROGRAM, GetModuleHandleW(nullptr), nullptr, L"",
                     SW_SHOWNORMAL);
}

void ProgramApp::Later(std::function<void()> step)
{
    later.push_back(std::move(step));
    PostMessageW(mainWindow, messageLater, 0, 0);
}

bool ProgramApp::CheckPrevInstance(HWND existingWindow, const wchar_t* /*line*/)
{
    return CApp::CheckPrevInstance(existingWindow, commandLine.c_str());
}

bool ProgramApp::OnCreate()
{
    const bool created = CApp::OnCreate();
    PostMessageW(mainWindow, messageBody, 0, 0);
    return created;
}

LRESULT ProgramApp::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == messageBody) {
        if (body) {
            body();
        }
        if (endsAfterBody && HasMainWindow()) {
            DestroyWindow(mainWindow);
        }
        return 0;
    }
    if (message == messageLater) {
        const std::function<void()> step = later.front();
        later.pop_front();
        step();
        return 0;
    }
    return CApp::WindowProc(message, wParam, lParam);
}

ProgramTest::ProgramTest()
{
    enumWindows.instead = [this](WNDENUMPROC callback, LPARAM parameter) {
        for (HWND window : std::vector<HWND>(listed)) {
            if (!callback(window, parameter)) {
                return FALSE;
            }
        }
        return TRUE;
    };
    sleep.instead = [](DWORD) {};
}

ProgramTest::~ProgramTest()
{
    for (HWND window : listed) {
        if (IsWindow(window)) {
            DestroyWindow(window);
        }
    }
}

int ProgramTest::InProgram(const std::function<void(ProgramApp&)>& test)
{
    ProgramApp app;
    app.body = [&] { test(app); };
    return Start(app);
}

int ProgramTest::Start(ProgramApp& app)
{
    const int result = app.Run();
    for (const RegisteredClass& registered : classes) {
        UnregisterClassW(registered.name.c_str(), registered.windowClass.hInstance);
    }
    classes.clear();
    return result;
}

HWND ProgramTest::AddTask(const wchar_t* title, const wchar_t* className)
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassW(&windowClass);
    // Below the screen, where it takes no focus and hides nothing.
    HWND task = CreateWindowExW(0, className, title, WS_POPUP, 0, 2000, 10, 10, nullptr, nullptr,
                                windowClass.hInstance, nullptr);
    EXPECT_NE(task, nullptr);
    ShowWindow(task, SW_SHOWNOACTIVATE);
    listed.push_back(task);
    return task;
}

void ProgramTest::EndTask(HWND task)
{
    DestroyWindow(task);
}

void ProgramTest::Unlist(HWND task)
{
    std::erase(listed, task);
}

int ProgramTest::Mark(HWND list)
{
    return static_cast<int>(SendMessageW(list, LVM_GETSELECTIONMARK, 0, 0));
}

std::vector<int> ProgramTest::RowsInState(HWND list, UINT state)
{
    std::vector<int> rows;
    const auto count = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < count; row++) {
        if (SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), state) ==
            static_cast<LRESULT>(state)) {
            rows.push_back(row);
        }
    }
    return rows;
}

std::wstring ProgramTest::Text(HWND window)
{
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::wstring ProgramTest::Notice(const ProgramApp& app)
{
    HWND window = app.infoWindow->Window();
    if (!IsWindowVisible(window)) {
        return L"";
    }
    std::wstring text;
    {
        SPY(DrawTextW) draw;
        draw.instead = [&](HDC dc, const wchar_t* drawn, int length, RECT* rect, UINT flags) {
            text = length == -1 ? std::wstring(drawn) : std::wstring(drawn, static_cast<size_t>(length));
            return draw.Real(dc, drawn, length, rect, flags);
        };
        InvalidateRect(window, nullptr, TRUE);
        UpdateWindow(window);
    }
    return text;
}
