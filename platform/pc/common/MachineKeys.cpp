// Keys of the machine's registry hive that everybody may write.
#include "platform/pc/common/MachineKeys.h"

#include <string>
#include <string_view>

namespace handheld {

static constexpr std::wstring_view buttons = buttonsKey;
static constexpr wchar_t userHive[] = L"Software\\Quorvane Handheld\\Machine\\";

// The per-user stand-in of a key; empty for any other key.
static std::wstring StandIn(HKEY root, const wchar_t* path)
{
    if (root != HKEY_LOCAL_MACHINE || !path) {
        return {};
    }
    const std::wstring_view name = path;
    const bool inside = name.size() >= buttons.size() &&
                        CompareStringOrdinal(path, static_cast<int>(buttons.size()), buttons.data(),
                                             static_cast<int>(buttons.size()), TRUE) == CSTR_EQUAL &&
                        (name.size() == buttons.size() || name[buttons.size()] == L'\\');
    return inside ? userHive + std::wstring(name) : std::wstring();
}

static bool HasStandIns()
{
    HKEY key = nullptr;
    const std::wstring all = userHive + std::wstring(buttons);
    if (RegOpenKeyExW(HKEY_CURRENT_USER, all.c_str(), 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) {
        return false;
    }
    RegCloseKey(key);
    return true;
}

LONG OpenMachineKey(HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* key)
{
    const std::wstring standIn = StandIn(root, path);
    const auto open = [&] { return RegOpenKeyExW(HKEY_CURRENT_USER, standIn.c_str(), options, access, key); };
    if (!standIn.empty() && HasStandIns()) {
        return open();
    }
    const LONG result = RegOpenKeyExW(root, path, options, access, key);
    return result == ERROR_ACCESS_DENIED && !standIn.empty() ? open() : result;
}

LONG CreateMachineKey(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className, DWORD options,
                      REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition)
{
    const std::wstring standIn = StandIn(root, path);
    const auto create = [&] {
        return RegCreateKeyExW(HKEY_CURRENT_USER, standIn.c_str(), reserved, className, options, access,
                               security, key, disposition);
    };
    if (!standIn.empty() && HasStandIns()) {
        return create();
    }
    const LONG result =
        RegCreateKeyExW(root, path, reserved, className, options, access, security, key, disposition);
    return result == ERROR_ACCESS_DENIED && !standIn.empty() ? create() : result;
}

} // namespace handheld
