// The application of the tests.
#include "tests/ui/TestApp.h"

#include "resources/ids.h"

int TestApp::Start(int showCommand)
{
    return Run(IDS_TITLE, IDI_PROGRAM, IDA_PROGRAM, GetModuleHandleW(nullptr), nullptr, L"", showCommand);
}

bool TestApp::OnCreate()
{
    NameWindow(mainWindow, "main");
    Note("app OnCreate");
    if (create && !create()) {
        return false;
    }
    if (body) {
        PostMessageW(mainWindow, messageBody, 0, 0);
    }
    return true;
}

void TestApp::OnDestroy()
{
    Note("app OnDestroy");
}

bool TestApp::CheckPrevInstance(HWND existingWindow, const wchar_t* /*commandLine*/)
{
    earlierInstance = existingWindow;
    return mayStart;
}

void TestApp::OnCommand(uint32_t id, uint32_t notifyCode, LPARAM control)
{
    Note("app OnCommand " + Numbers(id, notifyCode, control));
}

void TestApp::OnInitMenuPopup(HMENU menu, uint32_t index)
{
    Note("app OnInitMenuPopup " + Numbers(reinterpret_cast<UINT_PTR>(menu), index, 0));
}

void TestApp::OnActivate()
{
    Note("app OnActivate");
}

void TestApp::OnDeactivate()
{
    Note("app OnDeactivate");
}

LRESULT TestApp::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == messageBody) {
        TakeEvents(); // of the start
        body();
        if (endsAfterBody && HasMainWindow()) {
            DestroyWindow(mainWindow);
        }
        return 0;
    }
    if (message >= messageNoted) {
        Note("app WindowProc " + Numbers(message - messageNoted, wParam, lParam));
        return messageResult;
    }
    return CVireoApp::WindowProc(message, wParam, lParam);
}
