// Files of the device: opening and searching.
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/FindPattern.h"

#include <windows.h>

#include <map>

namespace {

// What a search of the PC has to be asked again for each file that it yields.
struct Search
{
    std::wstring pattern;
    bool onlyFolders;
};

class Lock
{
    SRWLOCK& lock;

  public:
    explicit Lock(SRWLOCK& theLock) : lock(theLock) { AcquireSRWLockExclusive(&lock); }
    ~Lock() { ReleaseSRWLockExclusive(&lock); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
};

} // namespace

static SRWLOCK searchesLock = SRWLOCK_INIT;

// By the PC's handles. One that is not here is a search for cards, which yields what it yields.
static std::map<HANDLE, Search>& Searches()
{
    static std::map<HANDLE, Search> searches;
    return searches;
}

static bool IsDots(const wchar_t* name)
{
    return lstrcmpW(name, L".") == 0 || lstrcmpW(name, L"..") == 0;
}

// The PC's search also yields "." and "..", takes "*.lnk" for "a.lnkx" and no limit seriously.
static bool Fits(const Search& search, const WIN32_FIND_DATAW& data)
{
    const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return (isFolder || !search.onlyFolders) && !IsDots(data.cFileName) &&
           handheld::MatchesPattern(data.cFileName, search.pattern);
}

static HANDLE FindFirst(const wchar_t* path, WIN32_FIND_DATAW& data, bool onlyFolders)
{
    // Wine would look behind a longer path, too.
    if (!path || wcslen(path) >= MAX_PATH) {
        SetLastError(ERROR_PATH_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    const std::wstring place = handheld::DevicePath(path);
    const HANDLE handle = FindFirstFileW(place.c_str(), &data);
    if (handle == INVALID_HANDLE_VALUE) {
        return handle;
    }
    Search search = {place.substr(place.find_last_of(L"\\/") + 1), onlyFolders};
    while (!Fits(search, data)) {
        if (!FindNextFileW(handle, &data)) {
            FindClose(handle);
            SetLastError(ERROR_FILE_NOT_FOUND);
            return INVALID_HANDLE_VALUE;
        }
    }
    const Lock lock(searchesLock);
    Searches()[handle] = std::move(search);
    return handle;
}

extern "C" HANDLE WINAPI ce_FindFirstFileW(const wchar_t* path, WIN32_FIND_DATAW* data)
{
    return FindFirst(path, *data, false);
}

// The device has no other level of information, no criteria and no flags.
extern "C" HANDLE WINAPI ce_FindFirstFileExW(const wchar_t* path, FINDEX_INFO_LEVELS level, void* data,
                                             FINDEX_SEARCH_OPS limit, void* criteria, DWORD flags)
{
    const bool known = limit == FindExSearchNameMatch || limit == FindExSearchLimitToDirectories;
    if (level != FindExInfoStandard || !known || !data || criteria || flags != 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    return FindFirst(path, *static_cast<WIN32_FIND_DATAW*>(data), limit == FindExSearchLimitToDirectories);
}

extern "C" BOOL WINAPI ce_FindNextFileW(HANDLE handle, WIN32_FIND_DATAW* data)
{
    Search search;
    {
        const Lock lock(searchesLock);
        const auto found = Searches().find(handle);
        if (found == Searches().end()) {
            SetLastError(ERROR_INVALID_HANDLE);
            return FALSE;
        }
        search = found->second;
    }
    while (FindNextFileW(handle, data)) {
        if (Fits(search, *data)) {
            return TRUE;
        }
    }
    return FALSE;
}

// It is forgotten first: the next search, of another thread perhaps, may get the same handle.
extern "C" BOOL WINAPI ce_FindClose(HANDLE handle)
{
    {
        const Lock lock(searchesLock);
        Searches().erase(handle);
    }
    return FindClose(handle);
}

extern "C" HANDLE WINAPI ce_CreateFileW(const wchar_t* path, DWORD access, DWORD share,
                                        SECURITY_ATTRIBUTES* security, DWORD disposition, DWORD flags,
                                        HANDLE templateFile)
{
    if (!path) {
        SetLastError(ERROR_PATH_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    return CreateFileW(handheld::DevicePath(path).c_str(), access, share, security, disposition, flags,
                       templateFile);
}
