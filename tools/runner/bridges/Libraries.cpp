// Libraries, and functions that are looked up in them.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"
#include "tools/runner/bridges/ImportBinding.h"

#include <map>

namespace runner {

namespace {

struct LoadedLibrary
{
    std::string name;
    int uses = 0;
};

} // namespace

// The libraries that the guest has loaded, by their cookies.
static std::map<Word, LoadedLibrary>& Loaded()
{
    static std::map<Word, LoadedLibrary> loaded;
    return loaded;
}

static std::string NarrowText(const wchar_t* text)
{
    std::string narrow;
    for (; *text; text++) {
        narrow += *text < 0x80 ? static_cast<char>(*text) : '?';
    }
    return narrow;
}

// One of the device's, whose functions its substitute serves. Another is one that the device does not have.
static Word DoLoadLibrary(Call& call)
{
    const std::string name = NarrowText(TextArgument(call, 0));
    const std::string host = HostLibraryOf(name);
    const HMODULE module = host.empty() ? nullptr : LoadLibraryA(host.c_str());
    if (!module) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return 0;
    }
    const Word cookie = CookieOf(call, CookieKind::Module, module);
    LoadedLibrary& loaded = Loaded()[cookie];
    loaded.name = name;
    loaded.uses++;
    return cookie;
}

static Word DoFreeLibrary(Call& call)
{
    call.Object(0, CookieKind::Module);
    // The substitute stays all the same: the guest's own imports keep it.
    if (--Loaded()[call.Argument(0)].uses == 0) {
        call.guest.cookies.Forget(CookieKind::Module, call.Argument(0));
    }
    return TRUE;
}

static Word DoGetProcAddress(Call& call)
{
    call.Object(0, CookieKind::Module);
    const char16_t* name = call.TextOrNumber(1);
    const std::string label = IS_INTRESOURCE(name) ? "#" + std::to_string(reinterpret_cast<ULONG_PTR>(name))
                                                   : NarrowText(Wide(name));
    const Address function = BindImport(call.guest, Loaded()[call.Argument(0)].name, label);
    if (function == 0) {
        SetLastError(ERROR_PROC_NOT_FOUND);
    }
    return function;
}

static Word DoInitCommonControls(Call& call)
{
    const auto* words = static_cast<const Word*>(call.In(call.Argument(0), sizeof(INITCOMMONCONTROLSEX)));
    NeedSize(call, words[0], sizeof(INITCOMMONCONTROLSEX));
    const INITCOMMONCONTROLSEX classes = {words[0], words[1]};
    return static_cast<Word>(InitCommonControlsEx(&classes));
}

static constexpr Bridge libraryRows[] = {
    {"FreeLibrary", DoFreeLibrary},
    {"GetProcAddressW", DoGetProcAddress},
    {"InitCommonControlsEx", DoInitCommonControls},
    {"LoadLibraryW", DoLoadLibrary},
    {"QueryPolicy", "e uq4"},
    {"SHInitExtraControls", "u"},
};

Bridges LibraryBridges()
{
    return libraryRows;
}

} // namespace runner
