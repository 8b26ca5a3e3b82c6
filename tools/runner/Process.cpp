// The guest as a process: how it begins and ends.
#include "tools/runner/Process.h"

#include "tools/common/InputFile.h"
#include "tools/common/Refusal.h"
#include "tools/runner/Probe.h"
#include "tools/runner/RunLog.h"
#include "tools/runner/bridges/Host.h"
#include "tools/runner/bridges/ImportBinding.h"

#include <filesystem>

namespace runner {

static std::string NarrowPath(const std::wstring& path)
{
    return std::filesystem::path(path).string();
}

// Every function of the import tables is served, or the executable would not start on a device either.
static void BindImports(Guest& guest, const ArmImage& image)
{
    for (const ArmImage::Import& import : image.Imports()) {
        const std::string name = import.name.empty() ? "#" + std::to_string(import.ordinal) : import.name;
        const Address trap = BindImport(guest, import.library, name);
        if (trap == 0) {
            throw Refusal("imports " + name + " of " + import.library + ", which nothing here serves");
        }
        guest.machine.memory.Write(import.slot, trap);
    }
}

static Address PlaceCommandLine(Machine& machine, const std::wstring& text)
{
    const auto bytes = static_cast<Word>((text.size() + 1) * sizeof(wchar_t));
    const Word pages = (bytes + GuestMemory::pageSize - 1) / GuestMemory::pageSize * GuestMemory::pageSize;
    const Address place = machine.layout.freeBegin;
    machine.memory.Map(place, pages, CanRead);
    std::memcpy(machine.memory.Host(place), text.c_str(), bytes);
    return place;
}

void RunProcess(RunLog& log, const std::wstring& imagePath, const std::wstring& symbolPath,
                const std::wstring& commandLine, bool isTraced)
{
    const ArmImage image(ReadInputFile(NarrowPath(imagePath)));
    // It lives as long as the process does: windows call back until the very end.
    auto& guest = *new Guest(log);
    SetTheGuest(guest);
    log.SetGuest(guest);
    if (std::filesystem::exists(symbolPath)) {
        guest.symbols = Symbols(ReadInputFile(NarrowPath(symbolPath)));
    }
    guest.journal = &log;
    guest.trace = isTraced ? &log : nullptr;
    guest.image = image.Base();
    guest.hostResources =
        reinterpret_cast<ULONG_PTR>(LoadLibraryExW(imagePath.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
    if (guest.hostResources == 0) {
        throw Refusal("has resources that the host cannot read");
    }
    guest.machine.Load(image, 1);
    BindImports(guest, image);
    if (log.IsWritten()) {
        guest.watcher = new Probe(guest, log, image);
    }
    const Address text = PlaceCommandLine(guest.machine, commandLine);
    guest.Enter(image.Entry(), image.Base(), 0, text, SW_SHOWNORMAL);
    guest.Misuse("the entry returned");
}

} // namespace runner
