// Files: opening, reading, searching.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/FindData.h"
#include "tools/runner/bridges/Host.h"

#include <algorithm>

namespace runner {

// Files and processes. A snapshot has a function of its own, but is an object of the system's too.
static CookieKind KindToClose(Call& call)
{
    for (const CookieKind kind : {CookieKind::Process, CookieKind::Snapshot}) {
        const Cookies::State state = call.guest.cookies.Take(kind, call.Argument(0)).state;
        if (state == Cookies::State::Known || state == Cookies::State::Forgotten) {
            return kind;
        }
    }
    return CookieKind::File;
}

static Word DoCloseHandle(Call& call)
{
    const CookieKind kind = KindToClose(call);
    const BOOL closed = CloseHandle(ObjectArgument<HANDLE>(call, 0, kind));
    call.guest.cookies.Forget(kind, call.Argument(0));
    return static_cast<Word>(closed);
}

static Word DoReadFile(Call& call)
{
    const Address buffer = call.Argument(1);
    const Word size = call.Argument(2);
    const auto count = call.RecordAt<Word>(3);
    if (!count || call.Argument(4) != 0) {
        call.guest.Misuse("a read that does not wait is not carried across");
    }
    DWORD delivered = 0;
    const BOOL result = ReadFile(ObjectArgument<HANDLE>(call, 0, CookieKind::File),
                                 call.Room(buffer, size, 1), size, &delivered, nullptr);
    call.MarkWritten(buffer, delivered);
    count.SetAll(delivered);
    return static_cast<Word>(result);
}

static Word DoSetFilePointer(Call& call)
{
    LONG high = 0;
    const auto record = call.RecordAt<LONG>(2);
    if (record) {
        high = record.GetAll();
    }
    const DWORD place = SetFilePointer(ObjectArgument<HANDLE>(call, 0, CookieKind::File), call.Signed(1),
                                       record ? &high : nullptr, call.Argument(3));
    if (record) {
        record.SetAll(high);
    }
    return place;
}

static Word DoFindFirst(Call& call)
{
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFileW(TextArgument(call, 0), &data);
    if (search != INVALID_HANDLE_VALUE) {
        GiveFindData(call, call.Argument(1), data);
    }
    return CookieOf(call, CookieKind::Search, search);
}

static Word DoFindFirstEx(Call& call)
{
    WIN32_FIND_DATAW data = {};
    if (call.Argument(4) != 0 || call.Argument(5) != 0) {
        call.guest.Misuse("criteria or flags of a search, which the device does not have");
    }
    const HANDLE search =
        FindFirstFileExW(TextArgument(call, 0), static_cast<FINDEX_INFO_LEVELS>(call.Argument(1)), &data,
                         static_cast<FINDEX_SEARCH_OPS>(call.Argument(3)), nullptr, 0);
    if (search != INVALID_HANDLE_VALUE) {
        GiveFindData(call, call.Argument(2), data);
    }
    return CookieOf(call, CookieKind::Search, search);
}

static Word DoFindNext(Call& call)
{
    WIN32_FIND_DATAW data = {};
    const BOOL found = FindNextFileW(ObjectArgument<HANDLE>(call, 0, CookieKind::Search), &data);
    if (found) {
        GiveFindData(call, call.Argument(1), data);
    }
    return static_cast<Word>(found);
}

static Word DoFindClose(Call& call)
{
    const BOOL closed = FindClose(ObjectArgument<HANDLE>(call, 0, CookieKind::Search));
    call.guest.cookies.Forget(CookieKind::Search, call.Argument(0));
    return static_cast<Word>(closed);
}

static constexpr Bridge fileRows[] = {
    {"CloseHandle", DoCloseHandle},       {"CreateFileW", "oO tuu p12 uuu"}, {"FindClose", DoFindClose},
    {"FindFirstFileExW", DoFindFirstEx},  {"FindFirstFileW", DoFindFirst},   {"FindNextFileW", DoFindNext},
    {"GetDiskFreeSpaceExW", "u tq8q8q8"}, {"GetFileSize", "d oOq4"},         {"ReadFile", DoReadFile},
    {"SetFilePointer", DoSetFilePointer},
};

Bridges FileBridges()
{
    return fileRows;
}

} // namespace runner
