// The guest as a process: how it begins and ends.
#pragma once

#include "tools/runner/calls/Guest.h"

namespace runner {

class RunLog;

// Loads the image and runs it; it ends itself. Throws Refusal for an image that cannot be run.
[[noreturn]] void RunProcess(RunLog& log, const std::wstring& image, const std::wstring& symbols,
                             const std::wstring& commandLine, bool isTraced);

} // namespace runner
