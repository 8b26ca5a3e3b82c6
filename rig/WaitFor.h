// Waiting in tests: for a condition, with a deadline, never for a time alone.
#pragma once

#include <windows.h>

#include <chrono>

namespace rig {

// Longer than anything takes on a slow machine; a test that passes does not wait this long.
inline constexpr std::chrono::milliseconds patience{15000};

// Asks until the answer is true (a window, a count, a flag) or the time is up; returns the last answer.
template <class Question>
auto WaitFor(Question question, std::chrono::milliseconds timeout = patience) -> decltype(question())
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        auto answer = question();
        if (answer || std::chrono::steady_clock::now() >= deadline) {
            return answer;
        }
        Sleep(20);
    }
}

} // namespace rig
