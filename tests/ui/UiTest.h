// What every test on real windows starts from: no message, class or event is left from the test before.
#pragma once

#include "tests/support/Spy.h"
#include "tests/ui/Events.h"
#include "tests/ui/TestApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

struct RegisteredClass
{
    std::wstring name;
    WNDCLASSW windowClass; // its texts are gone
};

class UiTest : public testing::Test
{
  protected:
    std::vector<RegisteredClass> classes; // of the program, in the order of their registration
    SPY(RegisterClassW) registerClass;

    UiTest();
    ~UiTest() override;

    // Before another application in the same test; all windows of these classes must be gone.
    void ForgetClasses();
    // Runs a test inside an application's message loop, and the application to its end.
    static int InApp(const std::function<void(TestApp&)>& test);
    // Dispatches messages until the condition holds; false when that takes more than five seconds.
    static bool PumpUntil(const std::function<bool()>& condition);
    // A quit message is waiting; it is taken out of the queue.
    static bool TakeQuit();
    // The registered class of that name; the test fails without it.
    RegisteredClass Class(const std::wstring& name) const;

    static RECT WindowRect(HWND window);
    static SIZE ClientSize(HWND window);
};

bool operator==(const RECT& one, const RECT& other);
void PrintTo(const RECT& rect, std::ostream* out);
