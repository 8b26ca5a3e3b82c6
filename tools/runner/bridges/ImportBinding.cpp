// Which trap serves a function that the guest imports: the lists of imports say where the host has it.
#include "tools/runner/bridges/ImportBinding.h"

#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/ImportRow.h"

#include <windows.h>

#include <ImportRows.h>
#include <algorithm>

namespace runner {

static std::string missing; // between commas

void DoWithout(const std::string& list)
{
    missing = "," + list + ",";
}

static std::string BaseName(const std::string& library)
{
    std::string base = library.substr(0, library.find('.'));
    std::transform(base.begin(), base.end(), base.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    return base;
}

std::string HostLibraryOf(const std::string& library)
{
    for (const ImportRow& row : importRows) {
        if (row.library == BaseName(library)) {
            return row.substitute;
        }
    }
    return "";
}

static const ImportRow* FindRow(const std::string& library, const std::string& name)
{
    for (const ImportRow& row : importRows) {
        const std::string number = "#" + std::to_string(row.number);
        if (row.library == library && (row.number != 0 ? number : row.name) == name) {
            return &row;
        }
    }
    return nullptr;
}

// Of the substitutes, as the program's own imports on the PC are: by their numbers where these have them.
static Guest::HostFunction HostFunctionOf(const ImportRow& row)
{
    const HMODULE module = LoadLibraryA(row.substitute);
    if (!module) {
        return nullptr;
    }
    const bool byNumber = row.number != 0 && !row.isLate;
    const FARPROC function =
        GetProcAddress(module, byNumber ? MAKEINTRESOURCEA(static_cast<WORD>(row.number)) : row.pcName);
    return reinterpret_cast<Guest::HostFunction>(reinterpret_cast<void*>(function));
}

Address BindImport(Guest& guest, const std::string& library, const std::string& name)
{
    const std::string base = BaseName(library);
    const std::string label = base + (name[0] == '#' ? "" : ".") + name;
    const ImportRow* row = FindRow(base, name);
    if (!row || missing.find("," + label + ",") != std::string::npos) {
        return 0;
    }
    const Bridge* bridge = FindBridge(row->name);
    const Guest::HostFunction host = HostFunctionOf(*row);
    return bridge && host ? guest.AddTrap(row->name, *bridge, host) : 0;
}

} // namespace runner
