// Starting programs, and the shortcuts that lead to them.
#include "platform/pc/common/ComScope.h"
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/Shortcut.h"
#include "platform/pc/common/SystemFunction.h"

#include <shellapi.h>

// A chain of more shortcuts than this is taken for a circle.
static constexpr int mostShortcuts = 8;

namespace {

struct Start
{
    std::wstring file; // of the PC
    std::wstring arguments;
    std::wstring folder; // to start it in; may be empty
};

} // namespace

static const wchar_t* OrNull(const std::wstring& text)
{
    return text.empty() ? nullptr : text.c_str();
}

static std::wstring Joined(const std::wstring& one, const std::wstring& other)
{
    return one.empty() || other.empty() ? one + other : one + L' ' + other;
}

// Follows shortcuts until something else is reached.
static bool FollowShortcuts(Start& start)
{
    for (int followed = 0; handheld::HasShortcutExtension(start.file); ++followed) {
        handheld::Shortcut shortcut;
        if (followed == mostShortcuts) {
            SetLastError(ERROR_TOO_MANY_LINKS);
            return false;
        }
        if (GetFileAttributesW(start.file.c_str()) == INVALID_FILE_ATTRIBUTES) {
            return false;
        }
        if (!handheld::ReadShortcut(start.file, shortcut)) {
            SetLastError(ERROR_BAD_FORMAT);
            return false;
        }
        start.file = handheld::DevicePath(shortcut.path);
        start.arguments = Joined(shortcut.arguments, start.arguments);
        if (start.folder.empty()) {
            start.folder = shortcut.folder;
        }
    }
    return true;
}

// A name without an extension is a program's too.
static bool IsProgram(const std::wstring& file)
{
    const size_t dot = file.find_last_of(L".\\/");
    return dot == std::wstring::npos || file[dot] != L'.' || lstrcmpiW(file.c_str() + dot, L".exe") == 0;
}

static bool StartProgram(const Start& start, int show, HANDLE& process)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(show);
    PROCESS_INFORMATION started = {};
    std::wstring command = Joined(L'"' + start.file + L'"', start.arguments);
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, OrNull(start.folder),
                        &startup, &started)) {
        return false;
    }
    CloseHandle(started.hThread);
    process = started.hProcess;
    return true;
}

// What opens a document is the PC's business.
static bool OpenDocument(const Start& start, const SHELLEXECUTEINFOW& info, HANDLE& process)
{
    static auto* const execute =
        handheld::SystemFunction<decltype(ShellExecuteExW)>(L"shell32.dll", "ShellExecuteExW");
    const handheld::ComScope com;
    SHELLEXECUTEINFOW own = {};
    own.cbSize = sizeof own;
    own.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    own.hwnd = info.hwnd;
    own.lpVerb = info.lpVerb;
    own.lpFile = start.file.c_str();
    own.lpParameters = OrNull(start.arguments);
    own.lpDirectory = OrNull(start.folder);
    own.nShow = info.nShow;
    if (!execute || !execute(&own)) {
        // Wine 8.0 tries to run a file that no program opens.
        if (GetLastError() == ERROR_BAD_EXE_FORMAT) {
            SetLastError(ERROR_NO_ASSOCIATION);
        }
        return false;
    }
    process = own.hProcess;
    return true;
}

static bool Execute(SHELLEXECUTEINFOW& info, HANDLE& process)
{
    Start start;
    start.file = handheld::DevicePath(info.lpFile);
    start.arguments = info.lpParameters ? info.lpParameters : L"";
    start.folder = info.lpDirectory ? info.lpDirectory : L"";
    if (!FollowShortcuts(start)) {
        return false;
    }
    start.folder = handheld::DevicePath(start.folder);
    return IsProgram(start.file) ? StartProgram(start, info.nShow, process)
                                 : OpenDocument(start, info, process);
}

extern "C" BOOL WINAPI ce_ShellExecuteEx(SHELLEXECUTEINFOW* info)
{
    if (!info || info->cbSize != sizeof *info || !info->lpFile || !*info->lpFile) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    HANDLE process = nullptr;
    const bool done = Execute(*info, process);
    const DWORD error = GetLastError();
    if ((info->fMask & SEE_MASK_NOCLOSEPROCESS) != 0) {
        info->hProcess = process;
    } else if (process) {
        CloseHandle(process);
    }
    // Above 32: it has been started.
    info->hInstApp = reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(done ? 42 : SE_ERR_FNF));
    SetLastError(done ? ERROR_SUCCESS : error);
    return done;
}
