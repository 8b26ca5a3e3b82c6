// The shell: folders and shortcuts, icons of files, starting programs.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/ComObject.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

namespace {

struct FileInfo
{
    Word icon;
    LONG index;
    Word attributes;
    char16_t display[MAX_PATH];
    char16_t type[80];
};
static_assert(sizeof(FileInfo) == 692);

struct ExecuteInfo
{
    Word size;
    Word mask;
    Word window;
    Word verb;
    Word file;
    Word parameters;
    Word directory;
    LONG show;
    Word instance;
    Word itemList;
    Word className;
    Word classKey;
    Word hotKey;
    Word icon;
    Word process;
};
static_assert(sizeof(ExecuteInfo) == 60);

} // namespace

static Word DoFileInfo(Call& call)
{
    const auto record = call.RecordAt<FileInfo>(2);
    const Word flags = call.Argument(4);
    NeedSize(call, call.Argument(3), sizeof(FileInfo));
    if (flags != (SHGFI_SYSICONINDEX | SHGFI_SMALLICON)) {
        call.guest.Misuse("facts of a file that are not carried across", flags);
    }
    call.Room(record.At(), sizeof(FileInfo));
    SHFILEINFOW info = {};
    const DWORD_PTR list = SHGetFileInfo(TextArgument(call, 0), call.Argument(1), &info, sizeof(info), flags);
    if (list != 0) {
        record.Set(&FileInfo::index, LONG{info.iIcon}); // nothing else is asked for
    }
    return call.Cookie(CookieKind::ImageList, list);
}

static Word DoShellExecute(Call& call)
{
    const auto record = call.RecordAt<ExecuteInfo>(0);
    NeedSize(call, record.Get(&ExecuteInfo::size), sizeof(ExecuteInfo));
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = record.Get(&ExecuteInfo::mask);
    if ((info.fMask & ~ULONG{SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI}) != 0) {
        call.guest.Misuse("members of the record that are not carried across", record.At());
    }
    info.hwnd = HandleOf<HWND>(record.Get(&ExecuteInfo::window));
    info.lpVerb = Wide(call.TextAt(record.Get(&ExecuteInfo::verb)));
    info.lpFile = Wide(call.TextAt(record.Get(&ExecuteInfo::file)));
    info.lpParameters = Wide(call.TextAt(record.Get(&ExecuteInfo::parameters)));
    info.lpDirectory = Wide(call.TextAt(record.Get(&ExecuteInfo::directory)));
    info.nShow = record.Get(&ExecuteInfo::show);
    const BOOL result = ShellExecuteEx(&info);
    record.Set(&ExecuteInfo::instance, WordOf(info.hInstApp));
    if (result && (info.fMask & SEE_MASK_NOCLOSEPROCESS) != 0) {
        record.Set(&ExecuteInfo::process, CookieOf(call, CookieKind::Process, info.hProcess));
    }
    return static_cast<Word>(result);
}

// The item list is the host's: all that the guest does with it is to hand it back.
static Word DoGetFolder(Call& call)
{
    ITEMIDLIST* item = nullptr;
    const HRESULT result = SHGetSpecialFolderLocation(HandleAt<HWND>(call, 0), call.Signed(1), &item);
    call.RecordAt<Word>(2).SetAll(CookieOf(call, CookieKind::ItemList, item));
    return static_cast<Word>(result);
}

static Word DoPathOfItem(Call& call)
{
    const Address path = call.Argument(1);
    auto* room = static_cast<wchar_t*>(call.Room(path, MAX_PATH * sizeof(wchar_t), sizeof(wchar_t)));
    const BOOL result =
        SHGetPathFromIDList(ObjectArgument<const ITEMIDLIST*>(call, 0, CookieKind::ItemList), room);
    if (result) {
        call.MarkText(path, MAX_PATH);
    }
    return static_cast<Word>(result);
}

static Word DoFreeItem(Call& call)
{
    const Word cookie = call.Argument(1);
    auto* item = ObjectArgument<void*>(call, 1, CookieKind::ItemList);
    ComObject<IMalloc>(call)->Free(item);
    call.guest.cookies.Forget(CookieKind::ItemList, cookie);
    return call.NoResult();
}

static Word DoGetMalloc(Call& call)
{
    static const ComMethods methods("IMalloc", {nullptr, nullptr, nullptr, nullptr, nullptr, DoFreeItem});
    IMalloc* allocator = nullptr;
    const HRESULT result = SHGetMalloc(&allocator);
    if (SUCCEEDED(result)) {
        call.RecordAt<Word>(0).SetAll(GiveComObject(call, allocator, methods));
    }
    return static_cast<Word>(result);
}

static constexpr Bridge shellRows[] = {
    {"ImageList_Draw", "u oIihiiu"},
    {"ImageList_GetIconSize", "u oIq4q4"},
    {"SHGetFileInfo", DoFileInfo},
    {"SHGetMalloc", DoGetMalloc},
    {"SHGetPathFromIDList", DoPathOfItem},
    {"SHGetShortcutTarget", "u tTi"},
    {"SHGetSpecialFolderLocation", DoGetFolder},
    {"ShellExecuteEx", DoShellExecute},
};

Bridges ShellBridges()
{
    return shellRows;
}

} // namespace runner
