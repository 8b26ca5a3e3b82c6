// The registry. A program on a device may write everywhere; on the PC a plain user may not write the
// machine's hive.
#include <windows.h>

#include <string>
#include <string_view>

static constexpr std::wstring_view buttonKeys = L"Software\\Microsoft\\Shell\\Keys";
static constexpr wchar_t userHive[] = L"Software\\Quorvane Handheld\\Machine\\";

// The per-user stand-in for one of the keys that a device lets everybody write; empty for any other key.
static std::wstring StandIn(HKEY root, const wchar_t* path)
{
    if (root != HKEY_LOCAL_MACHINE || !path) {
        return {};
    }
    const std::wstring_view name = path;
    const bool inside = name.size() >= buttonKeys.size() &&
                        CompareStringOrdinal(path, static_cast<int>(buttonKeys.size()), buttonKeys.data(),
                                             static_cast<int>(buttonKeys.size()), TRUE) == CSTR_EQUAL &&
                        (name.size() == buttonKeys.size() || name[buttonKeys.size()] == L'\\');
    return inside ? userHive + std::wstring(name) : std::wstring();
}

extern "C" LONG WINAPI ce_RegOpenKeyExW(HKEY root, const wchar_t* path, DWORD options, REGSAM access,
                                        HKEY* key)
{
    const LONG result = RegOpenKeyExW(root, path, options, access, key);
    if (result != ERROR_ACCESS_DENIED) {
        return result;
    }
    const std::wstring standIn = StandIn(root, path);
    return standIn.empty() ? result : RegOpenKeyExW(HKEY_CURRENT_USER, standIn.c_str(), options, access, key);
}

extern "C" LONG WINAPI ce_RegCreateKeyExW(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className,
                                          DWORD options, REGSAM access, SECURITY_ATTRIBUTES* security,
                                          HKEY* key, DWORD* disposition)
{
    const LONG result =
        RegCreateKeyExW(root, path, reserved, className, options, access, security, key, disposition);
    if (result != ERROR_ACCESS_DENIED) {
        return result;
    }
    const std::wstring standIn = StandIn(root, path);
    return standIn.empty() ? result
                           : RegCreateKeyExW(HKEY_CURRENT_USER, standIn.c_str(), reserved, className, options,
                                             access, security, key, disposition);
}
