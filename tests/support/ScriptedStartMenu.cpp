// A Start menu that exists only in a script.
#include "tests/support/ScriptedStartMenu.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // COM's interfaces have none

static ScriptedStartMenu* scriptedMenu;
static ImportHook* menuOriginals;
static char item; // any place will do for a list that nobody looks into

enum MenuFunction
{
    FindFirstItem = 4, // in the order of the hooks
    FindNextItem,
    FindItemsEnd
};

namespace {

struct Search
{
    std::vector<ScriptedStartMenu::Entry> found;
    size_t next = 0;
};

class Allocator final : public IMalloc
{
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(const IID&, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        scriptedMenu->calls.emplace_back(L"release");
        scriptedMenu->allocators--;
        return 1;
    }
    void* STDMETHODCALLTYPE Alloc(SIZE_T) override { return nullptr; }
    void* STDMETHODCALLTYPE Realloc(void*, SIZE_T) override { return nullptr; }
    void STDMETHODCALLTYPE Free(void* block) override
    {
        scriptedMenu->calls.emplace_back(block == &item ? L"free" : L"free of something else");
        scriptedMenu->items--;
    }
    SIZE_T STDMETHODCALLTYPE GetSize(void*) override { return 0; }
    int STDMETHODCALLTYPE DidAlloc(void*) override { return 0; }
    void STDMETHODCALLTYPE HeapMinimize() override {}
};

} // namespace

#pragma GCC diagnostic pop

static std::map<HANDLE, Search> openItemSearches;
static UINT_PTR nextSearch;
static constexpr UINT_PTR firstSearch = 0x5A5C0000; // none that the system gives

static HRESULT WINAPI GiveAllocator(IMalloc** allocator)
{
    static Allocator only;
    scriptedMenu->calls.emplace_back(L"allocator");
    if (FAILED(scriptedMenu->allocatorAnswer)) {
        return scriptedMenu->allocatorAnswer;
    }
    scriptedMenu->allocators++;
    *allocator = &only;
    return scriptedMenu->allocatorAnswer;
}

static HRESULT WINAPI GiveLocation(HWND owner, int folder, ITEMIDLIST** list)
{
    scriptedMenu->calls.push_back(L"location " + std::to_wstring(folder));
    scriptedMenu->askedOwner = owner;
    if (SUCCEEDED(scriptedMenu->locationAnswer) && scriptedMenu->givesItem) {
        scriptedMenu->items++;
        *list = reinterpret_cast<ITEMIDLIST*>(&item);
    }
    return scriptedMenu->locationAnswer;
}

// A path of the whole room has no end.
static BOOL WINAPI GiveItemPath(const ITEMIDLIST* list, wchar_t* path)
{
    scriptedMenu->calls.emplace_back(list ? L"path" : L"path of nothing");
    if (!scriptedMenu->givesPath) {
        return FALSE;
    }
    const size_t length = std::min<size_t>(scriptedMenu->place.size() + 1, MAX_PATH);
    wmemcpy(path, scriptedMenu->place.c_str(), length);
    return TRUE;
}

static BOOL WINAPI GiveTarget(const wchar_t* shortcut, wchar_t* target, int size)
{
    scriptedMenu->badRequest = scriptedMenu->badRequest || size != 260;
    const auto found = scriptedMenu->targets.find(shortcut);
    if (found == scriptedMenu->targets.end()) {
        return FALSE;
    }
    const size_t length = std::min(found->second.size() + 1, static_cast<size_t>(size));
    wmemcpy(target, found->second.c_str(), length);
    return TRUE;
}

static bool EndsLikeAShortcut(const std::wstring& name)
{
    return name.size() >= 4 && _wcsicmp(name.c_str() + name.size() - 4, L".lnk") == 0;
}

static void Give(const ScriptedStartMenu::Entry& entry, void* data)
{
    auto* record = static_cast<WIN32_FIND_DATAW*>(data);
    memset(record, 'X', sizeof *record);
    record->dwFileAttributes = entry.isFolder ? FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY
                                              : FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE;
    wmemcpy(record->cFileName, entry.name.c_str(), std::min<size_t>(entry.name.size() + 1, MAX_PATH));
}

static HANDLE WINAPI Begin(const wchar_t* path, FINDEX_INFO_LEVELS level, void* data, FINDEX_SEARCH_OPS limit,
                           void* filter, DWORD flags)
{
    const std::wstring whole = path;
    const size_t end = whole.find_last_of(L'\\') + 1;
    const auto folder = scriptedMenu->folders.find(whole.substr(0, end));
    if (folder == scriptedMenu->folders.end()) {
        return menuOriginals[FindFirstItem].Original<decltype(Begin)>()(path, level, data, limit, filter,
                                                                        flags);
    }
    scriptedMenu->calls.push_back(L"search " + whole);
    const bool forFolders = whole.substr(end) == L"*";
    const FINDEX_SEARCH_OPS expected = forFolders ? FindExSearchLimitToDirectories : FindExSearchNameMatch;
    scriptedMenu->badRequest = scriptedMenu->badRequest || level != FindExInfoStandard || limit != expected ||
                               filter || flags || (!forFolders && whole.substr(end) != L"*.lnk");
    Search search;
    for (const ScriptedStartMenu::Entry& entry : folder->second) {
        if (forFolders ? entry.isFolder || !scriptedMenu->keepsToFolders : EndsLikeAShortcut(entry.name)) {
            search.found.push_back(entry);
        }
    }
    if (search.found.empty()) {
        return INVALID_HANDLE_VALUE;
    }
    Give(search.found[search.next++], data);
    scriptedMenu->searches++;
    HANDLE handle = reinterpret_cast<HANDLE>(firstSearch + nextSearch++ % 0x10000);
    openItemSearches[handle] = std::move(search);
    return handle;
}

static BOOL WINAPI Continue(HANDLE handle, WIN32_FIND_DATAW* data)
{
    const auto open = openItemSearches.find(handle);
    if (open == openItemSearches.end()) {
        return menuOriginals[FindNextItem].Original<decltype(Continue)>()(handle, data);
    }
    Search& search = open->second;
    if (search.next == search.found.size()) {
        return FALSE;
    }
    Give(search.found[search.next++], data);
    return TRUE;
}

static BOOL WINAPI End(HANDLE handle)
{
    if (openItemSearches.erase(handle) == 0) {
        return menuOriginals[FindItemsEnd].Original<decltype(End)>()(handle);
    }
    scriptedMenu->searches--;
    return TRUE;
}

ScriptedStartMenu::ScriptedStartMenu()
    : hooks{{"ceshell.dll", 12, GiveAllocator},
            {"ceshell.dll", 10, GiveLocation},
            {"ceshell.dll", 11, GiveItemPath},
            {"ceshell.dll", 18, GiveTarget},
            {"FindFirstFileExW", Begin},
            {"FindNextFileW", Continue},
            {"FindClose", End}}
{
    folders[L"\\Menu\\"] = {};
    openItemSearches.clear();
    menuOriginals = hooks;
    scriptedMenu = this;
}

ScriptedStartMenu::~ScriptedStartMenu()
{
    scriptedMenu = nullptr;
    menuOriginals = nullptr;
}

void ScriptedStartMenu::AddFolder(const std::wstring& folder)
{
    std::wstring parent = place + L"\\";
    for (size_t begin = 0; begin < folder.size();) {
        const size_t end = std::min(folder.find(L'\\', begin), folder.size());
        const std::wstring name = folder.substr(begin, end - begin);
        const std::wstring path = parent + name + L"\\";
        if (folders.count(path) == 0) {
            folders[parent].push_back({name, true});
            folders[path] = {};
        }
        parent = path;
        begin = end + 1;
    }
}

std::wstring ScriptedStartMenu::Add(const std::wstring& shortcut)
{
    const size_t end = shortcut.find_last_of(L'\\');
    const bool isInside = end != std::wstring::npos;
    if (isInside) {
        AddFolder(shortcut.substr(0, end));
    }
    const std::wstring folder = place + L"\\" + (isInside ? shortcut.substr(0, end + 1) : L"");
    const std::wstring name = isInside ? shortcut.substr(end + 1) : shortcut;
    folders[folder].push_back({name, false});
    return folder + name;
}

std::wstring ScriptedStartMenu::Add(const std::wstring& shortcut, const std::wstring& target)
{
    const std::wstring path = Add(shortcut);
    targets[path] = target;
    return path;
}

void ScriptedStartMenu::Remove(const std::wstring& shortcut)
{
    for (auto& [path, entries] : folders) {
        std::erase_if(entries, [&, folder = path](const Entry& entry) {
            return folder + entry.name == place + L"\\" + shortcut;
        });
    }
}

void ScriptedStartMenu::AddMany(int count)
{
    for (int i = 0; i < count; i++) {
        const std::wstring name = L"Program " + std::to_wstring(i);
        Add(name + L".lnk", L"\\Windows\\" + name + L".exe");
    }
}
