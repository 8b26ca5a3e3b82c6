// Measures single pieces of the program's work, when a test or a measurement asks for it.
#pragma once

#include "tools/runner/RunLog.h"

#include <windows.h>

namespace runner {

struct ProbedWork;

class Probe : public WaitWatcher
{
    using Profile = std::vector<std::uint64_t>;

    Guest& guest;
    RunLog& log;
    bool isStarted = false;

  public:
    // From now on every instruction of the image's code is counted by itself.
    Probe(Guest& counted, RunLog& runLog, const ArmImage& image);
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;

    // The first time after rows were drawn is the end of the start.
    void BeforeWait() override;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool Obey(const COPYDATASTRUCT& order);
    void Measure(const ProbedWork& work);
    void Tell(const std::string& name, std::uint64_t instructions, std::uint64_t imports,
              const Profile& before);
};

} // namespace runner
