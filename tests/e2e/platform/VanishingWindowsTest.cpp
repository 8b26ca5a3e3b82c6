// The program among windows of other programs that come and go all the time.
#include "tests/e2e/ShellSession.h"

#include <atomic>
#include <thread>

using namespace rig;

// Windows made and destroyed by threads of this process, each of which the screen knows as a client of its
// own.
class WindowChurn
{
    std::atomic<bool> ending{false};
    std::vector<std::thread> threads;

  public:
    explicit WindowChurn(int count)
    {
        for (int i = 0; i < count; i++) {
            threads.emplace_back([this, i] { Run(i); });
        }
    }
    ~WindowChurn()
    {
        ending = true;
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    WindowChurn(const WindowChurn&) = delete;
    WindowChurn& operator=(const WindowChurn&) = delete;

  private:
    void Run(int place) const
    {
        while (!ending) {
            const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 20 * place, 60, 60,
                                                40, nullptr, nullptr, nullptr, nullptr);
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                DispatchMessageW(&message);
            }
            DestroyWindow(window);
        }
    }
};

class VanishingWindowsTest : public ShellSession
{
  protected:
    static constexpr DWORD duration = 60000; // ms: a small chance in each round is to be met
    static constexpr int churning = 4;
};

TEST_F(VanishingWindowsTest, TheProgramOutlivesThem)
{
    const WindowChurn churn(churning);
    const DWORD begin = GetTickCount();
    int rounds = 0;
    while (GetTickCount() - begin < duration && program->IsRunning()) {
        for (const int command : {ShowSysInfoCommand, ShowTasksCommand, ShowProcsCommand, ShowStartCommand}) {
            Send(main, WM_COMMAND, static_cast<WPARAM>(command));
        }
        rounds++;
    }
    const auto ended = program->ExitCode(std::chrono::milliseconds(0));
    EXPECT_FALSE(ended) << "it ended with the code " << *ended << " after " << rounds << " rounds and "
                        << GetTickCount() - begin << " ms";
}
