// Which program a process runs, and what the active profile says of it.
#include "platform/pc/common/ProcessPath.h"

namespace handheld {

static constexpr DWORD longestPath = 32768; // characters; what Windows knows

std::wstring PathOfProcess(HANDLE process)
{
    // Asked for every process of every refresh: the large room only for a path that needs it.
    wchar_t usual[MAX_PATH];
    DWORD length = MAX_PATH;
    if (QueryFullProcessImageNameW(process, 0, usual, &length)) {
        return {usual, length};
    }
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
        return {};
    }
    std::wstring path(longestPath, L'\0');
    length = longestPath;
    if (!QueryFullProcessImageNameW(process, 0, path.data(), &length)) {
        return {};
    }
    path.resize(length);
    return path;
}

const ProcessScript* ScriptOfProcess(DWORD processId)
{
    const DWORD error = GetLastError();
    const Profile& profile = ActiveProfile();
    const ProcessScript* script = nullptr;
    if (!profile.processScripts.empty()) {
        if (const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId)) {
            script = profile.FindProcessScript(PathOfProcess(process));
            CloseHandle(process);
        }
    }
    SetLastError(error);
    return script;
}

} // namespace handheld
