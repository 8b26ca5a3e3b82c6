// The device's executable in the runner, which measures single pieces of its work when it is asked to.
#pragma once

#include "rig/Program.h"
#include "tests/runner/counts/Figure.h"

#include <optional>

namespace counts {

// What the program has not given back.
struct Objects
{
    std::uint64_t blocks = 0; // of its heap
    std::uint64_t bytes = 0;
    std::string open = {}; // handles and objects of the platform, by kind
};

class CountedProgram
{
    std::wstring logs; // a file's path, behind which the process's number stands
    std::optional<rig::Program> program;
    HWND probe = nullptr;
    std::string startName;

  public:
    // Folder: an existing one, for the run's logs.
    explicit CountedProgram(const std::wstring& folder) : logs(folder + L"\\log") {}
    CountedProgram(const CountedProgram&) = delete;
    CountedProgram& operator=(const CountedProgram&) = delete;

    // In front and with its first page shown; false when it does not come to that. Name: the figure's.
    bool Start(const std::string& name = "start");
    // Asks the program to close; false when it does not end well.
    bool End();
    const rig::Program& Rig() const { return *program; }

    // Sends a message to one of the program's windows so often, and has painted what that makes invalid.
    bool Do(const std::string& name, HWND window, UINT message, WPARAM wParam, LPARAM lParam = 0,
            DWORD times = 1) const;
    // Has an area of a window painted, in client coordinates; all of it when the area is empty.
    bool Paint(const std::string& name, HWND window, const RECT& area = {}) const;
    // At this moment; nothing when the program does not answer.
    std::optional<Objects> Left() const;

    // A second start with such arguments, run to its end.
    std::optional<Figure> RunSecond(const std::string& name, const std::wstring& arguments) const;

    // All that was measured so far, in order; the first is the start.
    std::vector<Figure> Figures() const;
    // Of messages to windows of a class, as the log names them ("QuorvaneApp 0x004a"). When it has ended.
    std::optional<Figure> Part(const std::string& name, const std::string& part) const;

  private:
    std::string LogOf(DWORD process) const;
};

} // namespace counts
