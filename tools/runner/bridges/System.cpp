// The process itself, and what the system says of the device.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"
#include "tools/runner/calls/Leftovers.h"

namespace runner {

namespace {

struct Version
{
    Word size;
    Word major;
    Word minor;
    Word build;
    Word platform;
    char16_t addition[128];
};
static_assert(sizeof(Version) == 276);

} // namespace

static constexpr Word ownProcess = 0x42; // what GetCurrentProcess is on the device
static constexpr Word ownModule = 0;

static Word DoTerminateProcess(Call& call)
{
    const Word exitCode = call.Argument(1);
    if (call.Argument(0) != ownProcess) {
        return static_cast<Word>(
            TerminateProcess(ObjectArgument<HANDLE>(call, 0, CookieKind::Process), exitCode));
    }
    if (call.guest.journal) {
        call.guest.journal->WriteEnd(exitCode);
    }
    const std::string left = exitCode == 0 ? Leftovers(call.guest) : "";
    if (!left.empty()) {
        call.guest.Misuse("a program that ends well leaves " + left);
    }
    TerminateProcess(reinterpret_cast<HANDLE>(-1), exitCode);
    for (;;) {
        Sleep(INFINITE);
    }
}

static Word DoGetModuleHandle(Call& call)
{
    if (call.Argument(0) != ownModule) {
        call.guest.Misuse("a module by its name is not carried across");
    }
    return call.guest.image;
}

// The program itself, or a process's identifier in the place of a module. Its path is that of this runner,
// which stands in its place.
static Word DoGetModuleFileName(Call& call)
{
    const Word module = call.Argument(0);
    const Word room = call.Argument(2);
    const bool isOwn = module == ownModule || module == call.guest.image;
    const auto host = static_cast<ULONG_PTR>(isOwn ? 0 : module);
    auto* path = static_cast<wchar_t*>(call.Room(call.Argument(1), room * sizeof(wchar_t), sizeof(wchar_t)));
    const DWORD length = GetModuleFileNameW(reinterpret_cast<HMODULE>(host), path, room);
    if (length != 0) {
        call.MarkText(call.Argument(1), room);
    }
    return length;
}

static Word DoGetVersion(Call& call)
{
    const auto record = call.RecordAt<Version>(0);
    NeedSize(call, record.Get(&Version::size), sizeof(Version));
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof(version);
    const BOOL result = GetVersionExW(&version);
    if (result) {
        call.Out(record.At(), sizeof(Version));
        std::memcpy(call.guest.machine.memory.Host(record.At()), &version, sizeof(Version));
    }
    return static_cast<Word>(result);
}

static Word DoSystemParameters(Call& call)
{
    const Word action = call.Argument(0);
    const Word size = call.Argument(1);
    const Address buffer = call.Argument(2);
    BOOL result = FALSE;
    switch (action) {
    case SPI_GETPLATFORMTYPE:
        result = SystemParametersInfoW(
            action, size, call.Room(buffer, size * sizeof(wchar_t), sizeof(wchar_t)), call.Argument(3));
        if (result) {
            call.MarkText(buffer, size);
        }
        break;
    case SPI_GETWORKAREA: {
        RECT area;
        result = SystemParametersInfoW(action, 0, &area, call.Argument(3));
        if (result) {
            call.guest.machine.memory.Write(buffer, area);
        }
        break;
    }
    default:
        call.guest.Misuse("a parameter of the system that is not carried across", action);
    }
    return static_cast<Word>(result);
}

static constexpr Bridge systemRows[] = {
    {"GetDeviceCaps", "d hi"},
    {"GetLastError", "d"},
    {"GetModuleFileNameW", DoGetModuleFileName},
    {"GetModuleHandleW", DoGetModuleHandle},
    {"GetVersionExW", DoGetVersion},
    {"Sleep", "v u"},
    {"SystemParametersInfoW", DoSystemParameters},
    {"TerminateProcess", DoTerminateProcess},
};

Bridges SystemBridges()
{
    return systemRows;
}

} // namespace runner
