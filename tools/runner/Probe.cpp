// Measures single pieces of the program's work.
#include "tools/runner/Probe.h"

#include "tools/runner/ProbeOrder.h"

#include "platform/ce.h"

#include <algorithm>

namespace runner {

static constexpr std::size_t mostFunctions = 5;

static void CountEachInstruction(Processor& processor, const ArmImage& image)
{
    for (const ArmImage::Section& section : image.Sections()) {
        if ((section.protection & CanExecute) != 0) {
            processor.Profile(section.begin, section.size);
            return;
        }
    }
}

Probe::Probe(Guest& counted, RunLog& runLog, const ArmImage& image) : guest(counted), log(runLog)
{
    CountEachInstruction(guest.machine.processor, image);
    WNDCLASSW window = {};
    window.lpfnWndProc = Procedure;
    window.hInstance = GetModuleHandleW(nullptr);
    window.lpszClassName = probeClass;
    RegisterClassW(&window);
    const HWND made = CreateWindowExW(0, probeClass, std::to_wstring(GetCurrentProcessId()).c_str(), 0, 0, 0,
                                      0, 0, HWND_MESSAGE, nullptr, window.hInstance, nullptr);
    SetWindowLongPtrW(made, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

LRESULT CALLBACK Probe::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const probe = reinterpret_cast<Probe*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != WM_COPYDATA || !probe) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    return probe->Obey(*reinterpret_cast<const COPYDATASTRUCT*>(lParam)) ? TRUE : FALSE;
}

bool Probe::Obey(const COPYDATASTRUCT& order)
{
    if (order.dwData == MeasureWork && order.cbData == sizeof(ProbedWork)) {
        Measure(*static_cast<const ProbedWork*>(order.lpData));
        return true;
    }
    if (order.dwData == TellObjects) {
        log.Write("objects: " + log.Objects());
        return true;
    }
    return false;
}

// Rows of a list, which the program draws itself.
static bool HasDrawnRows(const Counts& counts)
{
    return std::ranges::any_of(counts.Sections(),
                               [](const auto& section) { return section.first.ends_with(" 0x002b"); });
}

void Probe::BeforeWait()
{
    if (!isStarted && HasDrawnRows(guest.counts)) {
        isStarted = true;
        Tell("start", guest.machine.processor.Count(), guest.counts.ImportCalls(), {});
    }
}

static void PaintPending(HWND window)
{
    RedrawWindow(GetAncestor(window, GA_ROOT), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

static void Carry(const ProbedWork& work)
{
    for (DWORD i = 0; work.message != 0 && i < work.times; i++) {
        SendMessageW(work.window, work.message, work.wParam, work.lParam);
    }
    if (work.message == 0) {
        RedrawWindow(work.window, IsRectEmpty(&work.area) ? nullptr : &work.area, nullptr, RDW_INVALIDATE);
    }
    PaintPending(work.window);
}

void Probe::Measure(const ProbedWork& work)
{
    PaintPending(work.window); // what was invalid before does not count
    const Processor& processor = guest.machine.processor;
    const std::uint64_t instructions = processor.Count();
    const std::uint64_t imports = guest.counts.ImportCalls();
    const Profile before = processor.ProfileCounts();
    Carry(work);
    const std::wstring name = work.name;
    Tell(std::string(name.begin(), name.end()), processor.Count() - instructions,
         guest.counts.ImportCalls() - imports, before);
}

void Probe::Tell(const std::string& name, std::uint64_t instructions, std::uint64_t imports,
                 const Profile& before)
{
    log.Write("measured: " + name + ": instructions " + std::to_string(instructions) + " imports " +
              std::to_string(imports));
    std::size_t told = 0;
    for (const auto& [function, count] : guest.counts.Functions(guest.symbols, before)) {
        if (told++ == mostFunctions) {
            break;
        }
        log.Write("  function: " + std::to_string(count) + " " + function);
    }
}

} // namespace runner
