// The Back key: it goes to the focused window, and the system treats it as it treats any other hot key.
#include "app/CApp.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <string>

static std::vector<std::string> order;

static void WINAPI SendBack(UINT, WPARAM, LPARAM)
{
    order.emplace_back("focused window");
}

static LRESULT WINAPI Default(HWND, UINT message, WPARAM, LPARAM)
{
    EXPECT_EQ(message, static_cast<UINT>(WM_HOTKEY));
    order.emplace_back("default");
    return 0x1234;
}

TEST(BackKeyTest, ItIsHandledByDefaultToo)
{
    const ImportHook back("SHSendBackToFocusWindow", SendBack);
    const ImportHook byDefault("DefWindowProcW", Default);
    CApp app;
    order.clear();
    EXPECT_EQ(app.WindowProc(WM_HOTKEY, 9, MAKELPARAM(0, VK_ESCAPE)), 0x1234);
    EXPECT_EQ(order, (std::vector<std::string>{"focused window", "default"}));
}
