// Finding and reading the profile of this process.
#include "platform/pc/common/ActiveProfile.h"

#include <windows.h>

namespace handheld {

static constexpr DWORD largestProfile = 64 * 1024;

static std::wstring FromUtf8(const std::string& bytes)
{
    std::wstring text(bytes.size(), L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(bytes.size()),
                                           text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<size_t>(length));
    return text;
}

static std::wstring PathFromEnvironment()
{
    wchar_t path[MAX_PATH];
    const DWORD length = GetEnvironmentVariableW(profileVariable, path, MAX_PATH);
    return length > 0 && length < MAX_PATH ? std::wstring(path, length) : std::wstring();
}

static std::wstring PathFromRegistry()
{
    wchar_t path[MAX_PATH] = {};
    DWORD size = sizeof(path) - sizeof(wchar_t);
    DWORD type = 0;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, profileKey, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) {
        return {};
    }
    const LONG result =
        RegQueryValueExW(key, profileValue, nullptr, &type, reinterpret_cast<BYTE*>(path), &size);
    RegCloseKey(key);
    return result == ERROR_SUCCESS && type == REG_SZ ? path : std::wstring();
}

static std::wstring PathBesideModule()
{
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH];
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&PathBesideModule), &module);
    const DWORD length = GetModuleFileNameW(module, path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) {
        return {};
    }
    std::wstring file(path, length);
    return file.substr(0, file.find_last_of(L'\\') + 1) + L"profiles\\pocketpc.ini";
}

static Profile FindProfile()
{
    Profile profile;
    for (const auto& find : {PathFromEnvironment, PathFromRegistry, PathBesideModule}) {
        const std::wstring path = find();
        if (!path.empty() && LoadProfile(path.c_str(), profile)) {
            break;
        }
    }
    return profile;
}

bool LoadProfile(const wchar_t* path, Profile& profile)
{
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    std::string bytes(largestProfile, '\0');
    DWORD read = 0;
    const bool complete = ReadFile(file, bytes.data(), largestProfile, &read, nullptr) != FALSE;
    CloseHandle(file);
    if (!complete) {
        return false;
    }
    bytes.resize(read);
    profile = ParseProfile(FromUtf8(bytes));
    return true;
}

const Profile& ActiveProfile()
{
    static const Profile profile = FindProfile();
    return profile;
}

} // namespace handheld
