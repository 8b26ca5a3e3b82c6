// DeviceLibraries: stands in for the device's libraries that functions are looked up in late.
#include "tests/unit/platform/device/DeviceLibraries.h"

DeviceLibraries* DeviceLibraries::current = nullptr;

static HMODULE WINAPI LoadStandIn(const wchar_t* library)
{
    return DeviceLibraries::current->Load(library);
}

static int WINAPI BoxStandIn(HWND, const wchar_t* text, const wchar_t*, UINT)
{
    DeviceLibraries::current->Note("box: " + (text != nullptr ? DeviceLibraries::Narrow(text) : "no text"));
    return IDOK;
}

static FARPROC WINAPI LookUpStandIn(HMODULE module, const wchar_t* name)
{
    return DeviceLibraries::current->LookUp(module, name);
}

DeviceLibraries::DeviceLibraries()
    : load("LoadLibraryW", LoadStandIn), address("GetProcAddressW", LookUpStandIn),
      box("MessageBoxW", BoxStandIn)
{
    current = this;
}

DeviceLibraries::~DeviceLibraries()
{
    current = nullptr;
}

std::string DeviceLibraries::Narrow(const wchar_t* text)
{
    return std::string(text, text + wcslen(text));
}

std::string DeviceLibraries::LookUpOf(const LateExport& wanted)
{
    return Narrow(wanted.library) + " " +
           (wanted.name != nullptr ? Narrow(wanted.name) : std::to_string(wanted.number));
}

HMODULE DeviceLibraries::Load(const wchar_t* library)
{
    if (missingLibraries.contains(Narrow(library))) {
        Note("no " + Narrow(library));
        return nullptr;
    }
    loaded.push_back(Narrow(library));
    return reinterpret_cast<HMODULE>(loaded.size());
}

FARPROC DeviceLibraries::LookUp(HMODULE module, const wchar_t* name)
{
    const std::string lookUp = loaded.at(reinterpret_cast<size_t>(module) - 1) + " " +
                               (IS_INTRESOURCE(name) ? std::to_string(LOWORD(name)) : Narrow(name));
    Note(lookUp);
    const auto found = functions.find(lookUp);
    return found != functions.end() ? reinterpret_cast<FARPROC>(found->second) : nullptr;
}
