// ClaimSession: a window of the test's own that is told of the keys it has claimed.
#pragma once

#include "rig/WaitFor.h"
#include "tests/e2e/HandheldKeys.h"

#include <gtest/gtest.h>

class ClaimSession : public testing::Test
{
  protected:
    const HandheldKeys keys;
    const HWND own =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);

    ~ClaimSession() override { DestroyWindow(own); }

    struct Told
    {
        int id;
        int modifiers;
        int key;
        bool operator==(const Told&) const = default;
    };
    friend void PrintTo(const Told& told, std::ostream* out)
    {
        *out << told.id << ": " << told.modifiers << " " << told.key;
    }
    // What this process's window is told of, when so many messages have come.
    std::vector<Told> TakeTold(size_t count) const
    {
        std::vector<Told> told;
        rig::WaitFor([&] {
            for (MSG message; PeekMessageW(&message, own, WM_HOTKEY, WM_HOTKEY, PM_REMOVE);) {
                told.push_back(
                    {static_cast<int>(message.wParam), LOWORD(message.lParam), HIWORD(message.lParam)});
            }
            return told.size() >= count;
        });
        return told;
    }
};
