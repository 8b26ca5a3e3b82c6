// StartLeaks: whether many rounds on the launcher page leave windows, drawing objects, blocks or handles of
// the shell behind.
#pragma once

#include "tests/ui/LeakCheck.h"
#include "tests/ui/pages/start/StartPageTest.h"

class StartLeaks : public StartPageTest
{
  protected:
    void ExpectNothingLeft(int times, const std::function<void()>& step, size_t keptBySystem = 0)
    {
        const auto forget = [this] {
            enumWindows.calls.clear();
            sleep.calls.clear();
            registerClass.calls.clear();
            menu.calls.clear();
            fonts.Forget();
        };
        ::ExpectNothingLeft(times, step, forget, keptBySystem);
        EXPECT_EQ(menu.items, 0);
        EXPECT_EQ(menu.allocators, 0);
        EXPECT_EQ(menu.searches, 0);
    }
};
