// The device's executable in the runner, which measures single pieces of its work when it is asked to.
#include "tests/runner/counts/CountedProgram.h"

#include "resources/ids.h"
#include "rig/Desktop.h"
#include "rig/WaitFor.h"
#include "tools/runner/ProbeOrder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace counts {

static constexpr const wchar_t* logVariable = L"QV_RUNNER_LOG";
static constexpr DWORD longestWork = 300000; // ms
static constexpr int firstPage = 1;

bool CountedProgram::Start(const std::string& name)
{
    startName = name;
    SetEnvironmentVariableW(logVariable, logs.c_str());
    program.emplace(rig::Program::Start());
    SetEnvironmentVariableW(logVariable, nullptr);
    const HWND main = program->WaitForMainWindow();
    const std::wstring id = std::to_wstring(program->Process());
    probe = FindWindowExW(HWND_MESSAGE, nullptr, runner::probeClass, id.c_str());
    return main && probe && program->WaitForPage(firstPage) && rig::BringToFront(main) &&
           rig::WaitFor([&] { return !Figures().empty(); });
}

bool CountedProgram::End()
{
    program->Command(CMD_EXIT);
    return program->ExitCode(rig::patience) == 0u;
}

static bool Order(HWND probe, runner::ProbeOrder order, const void* data, size_t size)
{
    COPYDATASTRUCT copy = {order, static_cast<DWORD>(size), const_cast<void*>(data)};
    DWORD_PTR answer = FALSE;
    SendMessageTimeoutW(probe, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy), SMTO_NORMAL, longestWork,
                        &answer);
    return answer == TRUE;
}

static bool Measure(HWND probe, const std::string& name, const runner::ProbedWork& work)
{
    runner::ProbedWork named = work;
    std::copy_n(name.begin(), std::min(name.size(), std::size(named.name) - 1), named.name);
    return Order(probe, runner::MeasureWork, &named, sizeof(named));
}

bool CountedProgram::Do(const std::string& name, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                        DWORD times) const
{
    return Measure(probe, name, {{}, window, message, wParam, lParam, {}, times});
}

bool CountedProgram::Paint(const std::string& name, HWND window, const RECT& area) const
{
    return Measure(probe, name, {{}, window, 0, 0, 0, area, 1});
}

std::string CountedProgram::LogOf(DWORD process) const
{
    std::ifstream file(std::filesystem::path(logs + L"." + std::to_wstring(process)));
    return {std::istreambuf_iterator<char>(file), {}};
}

// What stands behind the last line's beginning.
static std::string LastLine(const std::string& log, const std::string& beginning)
{
    std::istringstream lines(log);
    std::string found;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(beginning)) {
            found = line.substr(beginning.size());
        }
    }
    return found;
}

static std::uint64_t NumberAfter(const std::string& line, const std::string& word)
{
    const size_t place = line.find(word);
    return place == std::string::npos ? 0 : std::stoull(line.substr(place + word.size()));
}

static Figure FigureOf(const std::string& name, const std::string& line)
{
    return {name, NumberAfter(line, "instructions "), NumberAfter(line, "imports "), {}};
}

std::optional<Objects> CountedProgram::Left() const
{
    if (!Order(probe, runner::TellObjects, nullptr, 0)) {
        return std::nullopt;
    }
    const std::string line = LastLine(LogOf(program->Process()), "objects: ");
    return Objects{NumberAfter(line, "blocks "), NumberAfter(line, "bytes "), line.substr(line.find("open"))};
}

std::vector<Figure> CountedProgram::Figures() const
{
    static const std::string measured = "measured: ";
    static const std::string function = "  function: ";
    std::vector<Figure> figures;
    std::istringstream lines(LogOf(program->Process()));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(measured)) {
            const size_t colon = line.rfind(": ");
            figures.push_back(
                FigureOf(line.substr(measured.size(), colon - measured.size()), line.substr(colon)));
        } else if (line.starts_with(function) && !figures.empty()) {
            figures.back().functions.push_back(line.substr(function.size()));
        }
    }
    if (!figures.empty()) {
        figures.front().name = startName;
    }
    return figures;
}

std::optional<Figure> CountedProgram::RunSecond(const std::string& name, const std::wstring& arguments) const
{
    SetEnvironmentVariableW(logVariable, logs.c_str());
    const rig::ChildProcess second(rig::ProgramFolder() + L"\\Quorvane.exe", arguments);
    SetEnvironmentVariableW(logVariable, nullptr);
    if (second.ExitCode(rig::patience) != 0u) {
        return std::nullopt;
    }
    return FigureOf(name, LastLine(LogOf(second.Id()), "end: "));
}

std::optional<Figure> CountedProgram::Part(const std::string& name, const std::string& part) const
{
    const std::string line = LastLine(LogOf(program->Process()), "  part: " + part + " times ");
    return line.starts_with("1 ") ? std::optional(FigureOf(name, line)) : std::nullopt;
}

} // namespace counts
