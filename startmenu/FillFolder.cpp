// The shortcuts below a folder.
#include "startmenu/FillFolder.h"

#include "framework/Assert.h"
#include "framework/PathText.h"

static constexpr const wchar_t* method = L"FillFolder";

namespace {

// One search in a folder. Its record is on the heap: the folders are entered recursively, and a device's
// stack is small.
class CFolderSearch
{
    WIN32_FIND_DATAW* found = new WIN32_FIND_DATAW;
    HANDLE search = INVALID_HANDLE_VALUE;

  public:
    CFolderSearch(const wchar_t* folder, const wchar_t* pattern, FINDEX_SEARCH_OPS operation)
    {
        Assert(found != nullptr, ErrorNoMemory, method, __LINE__);
        CStr files(folder);
        files.Append(pattern);
        search = FindFirstFileExW(files, FindExInfoStandard, found, operation, nullptr, 0);
    }
    ~CFolderSearch()
    {
        if (search != INVALID_HANDLE_VALUE) {
            FindClose(search);
        }
        delete found;
    }
    CFolderSearch(const CFolderSearch&) = delete;
    CFolderSearch& operator=(const CFolderSearch&) = delete;

    bool Any() const { return search != INVALID_HANDLE_VALUE; }
    bool Next() { return FindNextFileW(search, found) != FALSE; }
    bool IsFolder() const { return (found->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    const wchar_t* Name() const { return found->cFileName; }
};

} // namespace

// Not part of the recursion's frames.
[[gnu::noinline]] static void AddShortcut(const wchar_t* folder, const wchar_t* name,
                                          CRecords<SAppsList>& programs)
{
    auto* program = new SAppsList;
    Assert(program != nullptr, ErrorNoMemory, method, __LINE__);
    program->path = folder;
    program->path.Append(name);
    CPathText target;
    if (SHGetShortcutTarget(program->path, target.Room(), pathSize)) {
        program->target = target;
    }
    programs.Append(program);
}

// What the platform cannot open is not entered: a folder that leads back to itself would have no end.
static void EnterFolder(const wchar_t* folder, const wchar_t* name, CRecords<SAppsList>& programs)
{
    CStr inner(folder);
    inner.Append(name);
    inner.Append(L"\\");
    if (inner.Length() < pathSize) {
        FillFolder(inner, programs);
    }
}

static void AddShortcuts(const wchar_t* folder, CRecords<SAppsList>& programs)
{
    CFolderSearch search(folder, L"*.lnk", FindExSearchNameMatch);
    for (bool more = search.Any(); more; more = search.Next()) {
        if (search.IsFolder()) {
            EnterFolder(folder, search.Name(), programs);
        } else if (_wcsicmp(search.Name(), L"icon.lnk") != 0) { // the folder's own icon
            AddShortcut(folder, search.Name(), programs);
        }
    }
}

static void EnterFolders(const wchar_t* folder, CRecords<SAppsList>& programs)
{
    CFolderSearch search(folder, L"*", FindExSearchLimitToDirectories);
    for (bool more = search.Any(); more; more = search.Next()) {
        Assert(search.IsFolder(), ErrorGeneric, method, __LINE__);
        EnterFolder(folder, search.Name(), programs);
    }
}

void FillFolder(const wchar_t* folder, CRecords<SAppsList>& programs)
{
    AddShortcuts(folder, programs);
    EnterFolders(folder, programs);
}
