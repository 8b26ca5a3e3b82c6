// The registry. Its keys are closed once, and a closed one is told from another.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

static HKEY KeyArgument(Call& call)
{
    return ObjectArgument<HKEY>(call, 0, CookieKind::Key);
}

static Word DoCloseKey(Call& call)
{
    const LONG result = RegCloseKey(KeyArgument(call));
    call.guest.cookies.Forget(CookieKind::Key, call.Argument(0));
    return static_cast<Word>(result);
}

static Word DoOpenKey(Call& call)
{
    HKEY key = nullptr;
    const LONG result =
        RegOpenKeyExW(KeyArgument(call), TextArgument(call, 1), call.Argument(2), call.Argument(3), &key);
    if (result == ERROR_SUCCESS) {
        call.RecordAt<Word>(4).SetAll(CookieOf(call, CookieKind::Key, key));
    }
    return static_cast<Word>(result);
}

static Word DoCreateKey(Call& call)
{
    HKEY key = nullptr;
    DWORD disposition = 0;
    if (call.Argument(6) != 0) {
        call.guest.Misuse("security of a key, which the device does not have", call.Argument(6));
    }
    const LONG result = RegCreateKeyExW(KeyArgument(call), TextArgument(call, 1), call.Argument(2),
                                        const_cast<wchar_t*>(TextArgument(call, 3)), call.Argument(4),
                                        call.Argument(5), nullptr, &key, &disposition);
    if (result == ERROR_SUCCESS) {
        call.RecordAt<Word>(7).SetAll(CookieOf(call, CookieKind::Key, key));
        if (const auto record = call.RecordAt<Word>(8)) {
            record.SetAll(disposition);
        }
    }
    return static_cast<Word>(result);
}

// The room's size goes in where there is room, and the value's comes out.
static Word DoQueryValue(Call& call)
{
    const auto type = call.RecordAt<Word>(3);
    const auto size = call.RecordAt<Word>(5);
    const Address data = call.Argument(4);
    if (call.Argument(2) != 0) {
        call.guest.Misuse("a parameter that has to be null", call.Argument(2));
    }
    DWORD kind = 0;
    DWORD bytes = size && data != 0 ? size.GetAll() : 0;
    auto* room = static_cast<BYTE*>(call.Room(data, bytes, 1));
    const LONG result = RegQueryValueExW(KeyArgument(call), TextArgument(call, 1), nullptr, &kind, room,
                                         size ? &bytes : nullptr);
    if (result == ERROR_SUCCESS && room) {
        call.MarkWritten(data, bytes);
    }
    if (result == ERROR_SUCCESS || result == ERROR_MORE_DATA) {
        if (size) {
            size.SetAll(bytes);
        }
        if (type) {
            type.SetAll(kind);
        }
    }
    return static_cast<Word>(result);
}

static Word DoSetValue(Call& call)
{
    const Word kind = call.Argument(3);
    const Address data = call.Argument(4);
    const Word size = call.Argument(5);
    const void* bytes = call.In(data, size, 1);
    if (kind == REG_DWORD && size != sizeof(DWORD)) {
        call.guest.Misuse("a number of " + std::to_string(size) + " bytes", data);
    }
    // Who reads it may rely on the zero.
    if (kind == REG_SZ && call.guest.machine.memory.Text(data).size() != size / sizeof(wchar_t) - 1) {
        call.guest.Misuse("a text of another length than its bytes", data);
    }
    return static_cast<Word>(RegSetValueExW(KeyArgument(call), TextArgument(call, 1), call.Argument(2), kind,
                                            static_cast<const BYTE*>(bytes), size));
}

static Word DoEnumKey(Call& call)
{
    const auto size = call.RecordAt<Word>(3);
    DWORD characters = size.GetAll();
    const Address name = call.Argument(2);
    auto* room = static_cast<wchar_t*>(
        call.Room(name, characters * static_cast<Word>(sizeof(wchar_t)), sizeof(wchar_t)));
    if (call.Argument(4) != 0 || call.Argument(5) != 0 || call.Argument(6) != 0 || call.Argument(7) != 0) {
        call.guest.Misuse("a class or a time of a key is not carried across");
    }
    const LONG result = RegEnumKeyExW(KeyArgument(call), call.Argument(1), room, &characters, nullptr,
                                      nullptr, nullptr, nullptr);
    if (result == ERROR_SUCCESS) {
        call.MarkWritten(name, (characters + 1) * static_cast<Word>(sizeof(wchar_t)));
        size.SetAll(characters);
    }
    return static_cast<Word>(result);
}

static constexpr Bridge registryRows[] = {
    {"RegCloseKey", DoCloseKey},
    {"RegCreateKeyExW", DoCreateKey},
    {"RegEnumKeyExW", DoEnumKey},
    {"RegOpenKeyExW", DoOpenKey},
    {"RegQueryInfoKeyW", "e oKtp4p4q4q4q4q4q4q4q4q8"},
    {"RegQueryValueExW", DoQueryValue},
    {"RegSetValueExW", DoSetValue},
};

Bridges RegistryBridges()
{
    return registryRows;
}

} // namespace runner
