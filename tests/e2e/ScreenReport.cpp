// What stood on the screen when a check failed: the windows from the front one to the back. A failure that
// comes once in a hundred runs can be told from that.
#include "tests/e2e/ScreenReport.h"

#include "rig/Desktop.h"

#include <gtest/gtest.h>

#include <iostream>

namespace {

class ScreenReport : public testing::EmptyTestEventListener
{
    bool reported = false; // the first failure tells the cause, later ones follow from it

    void OnTestStart(const testing::TestInfo& /*test*/) override { reported = false; }
    void OnTestPartResult(const testing::TestPartResult& result) override;
};

} // namespace

static std::string Narrow(const std::wstring& text)
{
    std::string narrow;
    for (const wchar_t character : text) {
        narrow += character >= L' ' && character <= L'~' ? static_cast<char>(character) : '?';
    }
    return narrow;
}

// Not by WM_GETTEXT, as the window may not answer.
static std::string TitleOf(HWND window)
{
    wchar_t title[64] = {};
    InternalGetWindowText(window, title, 64);
    return Narrow(title);
}

static void Tell(HWND window)
{
    if (!window) {
        std::cout << "none\n";
        return;
    }
    RECT rect = {};
    GetWindowRect(window, &rect);
    std::cout << window << ' ' << Narrow(rig::ClassOf(window)) << " \"" << TitleOf(window) << "\" of "
              << Narrow(rig::ExecutableOf(rig::ProcessOf(window))) << ' ' << rig::ProcessOf(window) << ", "
              << rect.left << ',' << rect.top << " to " << rect.right << ',' << rect.bottom
              << (IsWindowEnabled(window) ? "" : ", disabled") << '\n';
}

void ScreenReport::OnTestPartResult(const testing::TestPartResult& result)
{
    if (!result.failed() || reported) {
        return;
    }
    reported = true;
    POINT stylus = {};
    GetCursorPos(&stylus);
    std::cout << "in front: ";
    Tell(GetForegroundWindow());
    std::cout << "with the keyboard: ";
    Tell(rig::FocusOf(GetForegroundWindow()));
    std::cout << "under the stylus at " << stylus.x << ',' << stylus.y << ": ";
    Tell(WindowFromPoint(stylus));
    for (HWND window : rig::TopWindows()) {
        if (IsWindowVisible(window)) {
            std::cout << "  ";
            Tell(window);
        }
    }
    std::cout.flush();
}

void ReportEnd(const std::optional<rig::Program>& program)
{
    if (const auto code = program ? program->ExitCode(std::chrono::milliseconds(0)) : std::nullopt) {
        std::cout << "the program has ended with the code " << *code << '\n' << std::flush;
    }
}

static const bool listening = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new ScreenReport); // which deletes it
    return true;
}();
