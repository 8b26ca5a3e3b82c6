// Starting programs and documents.
#include "platform/pc/common/StartFile.h"

#include "platform/pc/common/ComScope.h"
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/Shortcut.h"
#include "platform/pc/common/SystemFunction.h"

#include <shellapi.h>

namespace handheld {

// A chain of more shortcuts than this is taken for a circle.
static constexpr int mostShortcuts = 8;

static const wchar_t* OrNull(const std::wstring& text)
{
    return text.empty() ? nullptr : text.c_str();
}

static std::wstring Joined(const std::wstring& one, const std::wstring& other)
{
    return one.empty() || other.empty() ? one + other : one + L' ' + other;
}

// Follows shortcuts until something else is reached.
static bool FollowShortcuts(StartRequest& start)
{
    for (int followed = 0; HasShortcutExtension(start.file); ++followed) {
        Shortcut shortcut;
        if (followed == mostShortcuts) {
            SetLastError(ERROR_TOO_MANY_LINKS);
            return false;
        }
        if (GetFileAttributesW(start.file.c_str()) == INVALID_FILE_ATTRIBUTES) {
            return false;
        }
        if (!ReadShortcut(start.file, shortcut)) {
            SetLastError(ERROR_BAD_FORMAT);
            return false;
        }
        start.file = DevicePath(shortcut.path);
        start.arguments = Joined(shortcut.arguments, start.arguments);
        if (start.folder.empty()) {
            start.folder = shortcut.folder;
        }
    }
    return true;
}

static bool IsFolder(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The PC's links may have %names% in their folders.
static std::wstring Expanded(const std::wstring& text)
{
    std::wstring expanded(ExpandEnvironmentStringsW(text.c_str(), nullptr, 0), L'\0');
    ExpandEnvironmentStringsW(text.c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
    return expanded.substr(0, expanded.find(L'\0'));
}

// A name without an extension is a program's too.
static bool IsProgram(const std::wstring& file)
{
    if (IsFolder(file)) {
        return false;
    }
    const size_t dot = file.find_last_of(L".\\/");
    return dot == std::wstring::npos || file[dot] != L'.' || lstrcmpiW(file.c_str() + dot, L".exe") == 0;
}

static bool StartProgram(const StartRequest& start, HANDLE& process)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(start.show);
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
static bool OpenDocument(const StartRequest& start, HANDLE& process)
{
    static auto* const execute = SystemFunction<decltype(ShellExecuteExW)>(L"shell32.dll", "ShellExecuteExW");
    const ComScope com;
    SHELLEXECUTEINFOW own = {};
    own.cbSize = sizeof own;
    own.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    own.hwnd = start.owner;
    own.lpVerb = start.verb;
    own.lpFile = start.file.c_str();
    own.lpParameters = OrNull(start.arguments);
    own.lpDirectory = OrNull(start.folder);
    own.nShow = start.show;
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

bool StartFile(const StartRequest& request, HANDLE& process)
{
    StartRequest start = request;
    start.file = DevicePath(start.file);
    process = nullptr;
    if (!FollowShortcuts(start)) {
        return false;
    }
    start.folder = DevicePath(Expanded(start.folder));
    if (!IsFolder(start.folder)) {
        start.folder.clear(); // the program starts all the same
    }
    return IsProgram(start.file) ? StartProgram(start, process) : OpenDocument(start, process);
}

} // namespace handheld
