// Paths of programs and libraries.
#include "platform/pc/common/ProcessPath.h"

// Modules lie on 64 KB borders; anything else in a module's place is a process id, as a device takes it. (A
// process whose id is a multiple of that has no path here.)
static bool IsProcessId(HMODULE module)
{
    return (reinterpret_cast<ULONG_PTR>(module) & 0xFFFF) != 0;
}

static DWORD PathOfProcess(DWORD process, wchar_t* path, DWORD size)
{
    if (size == 0) {
        return 0;
    }
    *path = L'\0';
    const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    if (!handle) {
        return 0;
    }
    const std::wstring known = handheld::PathOfProcess(handle);
    CloseHandle(handle);
    if (known.size() >= size) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return 0;
    }
    lstrcpyW(path, known.c_str());
    return static_cast<DWORD>(known.size());
}

static const wchar_t* NamePart(const wchar_t* path)
{
    const wchar_t* name = path;
    for (const wchar_t* c = path; *c; ++c) {
        if (*c == L'\\' || *c == L'/') {
            name = c + 1;
        }
    }
    return name;
}

extern "C" DWORD WINAPI ce_GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size)
{
    if (IsProcessId(module)) {
        return PathOfProcess(static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(module)), path, size);
    }
    return GetModuleFileNameW(module, path, size);
}

// The libraries of the device lie beside this one, wherever the program was started from.
extern "C" HMODULE WINAPI ce_LoadLibraryW(const wchar_t* name)
{
    if (NamePart(name) == name) {
        HMODULE self = nullptr;
        wchar_t path[MAX_PATH];
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<const wchar_t*>(&ce_LoadLibraryW), &self);
        const DWORD length = GetModuleFileNameW(self, path, MAX_PATH);
        if (length > 0 && length < MAX_PATH) {
            auto* file = const_cast<wchar_t*>(NamePart(path));
            if (file - path + lstrlenW(name) < MAX_PATH) {
                lstrcpyW(file, name);
                if (const HMODULE module = LoadLibraryW(path)) {
                    return module;
                }
            }
        }
    }
    return LoadLibraryW(name);
}
