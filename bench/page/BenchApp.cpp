// BenchApp: the program with its pages, which measures itself from inside its message loop and then ends.
#include "bench/page/BenchApp.h"

#include "resources/ids.h"

int BenchApp::Start()
{
    return CApp::Run(IDS_TITLE, IDI_PROGRAM, IDA_PROGRAM, GetModuleHandleW(nullptr), nullptr, L"",
                     SW_SHOWNORMAL);
}

CVireoView* BenchApp::FindView(int32_t id)
{
    for (uint32_t i = 0; i < views->Count(); i++) {
        if (views->At(i)->Id() == id) {
            return views->At(i);
        }
    }
    return nullptr;
}

bool BenchApp::OnCreate()
{
    const bool created = CApp::OnCreate();
    PostMessageW(mainWindow, messageBody, 0, 0);
    return created;
}

// The measurements are one message: no timer's refresh comes between them.
LRESULT BenchApp::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != messageBody) {
        return CApp::WindowProc(message, wParam, lParam);
    }
    body(*this);
    DestroyWindow(mainWindow);
    return 0;
}
