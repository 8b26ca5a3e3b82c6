// The fixture of the tests on real windows.
#include "tests/ui/UiTest.h"

#include <ostream>

static constexpr DWORD patience = 5000; // milliseconds

UiTest::UiTest()
{
    ResetEvents();
    registerClass.instead = [this](const WNDCLASSW* windowClass) {
        classes.push_back({windowClass->lpszClassName, *windowClass});
        return registerClass.Real(windowClass);
    };
}

void UiTest::ForgetClasses()
{
    for (const RegisteredClass& registered : classes) {
        UnregisterClassW(registered.name.c_str(), registered.windowClass.hInstance);
    }
    classes.clear();
}

UiTest::~UiTest()
{
    ForgetClasses();
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
}

int UiTest::InApp(const std::function<void(TestApp&)>& test)
{
    TestApp app;
    app.body = [&] { test(app); };
    return app.Start();
}

bool UiTest::PumpUntil(const std::function<bool()>& condition)
{
    const ULONGLONG deadline = GetTickCount64() + patience;
    while (!condition()) {
        const ULONGLONG now = GetTickCount64();
        if (now >= deadline) {
            return false;
        }
        MSG message = {};
        if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
        } else {
            // In steps, because the condition may depend on more than messages.
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        }
    }
    return true;
}

bool UiTest::TakeQuit()
{
    MSG message = {};
    return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}

RegisteredClass UiTest::Class(const std::wstring& name) const
{
    for (const RegisteredClass& registered : classes) {
        if (registered.name == name) {
            return registered;
        }
    }
    ADD_FAILURE() << "there is no such window class";
    return {};
}

RECT UiTest::WindowRect(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

SIZE UiTest::ClientSize(HWND window)
{
    RECT rect = {};
    GetClientRect(window, &rect);
    return {rect.right, rect.bottom};
}

bool operator==(const RECT& one, const RECT& other)
{
    return one.left == other.left && one.top == other.top && one.right == other.right &&
           one.bottom == other.bottom;
}

void PrintTo(const RECT& rect, std::ostream* out)
{
    *out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}
