// Top-level windows that exist only in a script.
#include "tests/unit/ScriptedWindows.h"

#include <algorithm>
#include <cwchar>

static ScriptedWindows* scriptedWindows;
static const UINT_PTR firstHandle = 0x7C0010;

static int Copy(const std::wstring& text, wchar_t* buffer, int size)
{
    scriptedWindows->longestText = std::max(scriptedWindows->longestText, size);
    const auto length = std::min(text.size(), static_cast<size_t>(size) - 1);
    wmemcpy(buffer, text.c_str(), length);
    buffer[length] = 0;
    return static_cast<int>(length);
}

static BOOL WINAPI AnswerVisible(HWND window)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    return found && found->visible;
}

static BOOL WINAPI AnswerEnabled(HWND window)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    return found && found->enabled;
}

static BOOL WINAPI AnswerIsWindow(HWND window)
{
    return scriptedWindows->Ask(window) != nullptr;
}

static LONG_PTR WINAPI AnswerLong(HWND window, int index)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    if (!found) {
        return 0;
    }
    return index == GWL_STYLE ? found->style : index == GWL_EXSTYLE ? found->exStyle : 0;
}

static HWND WINAPI AnswerWindow(HWND window, UINT relation)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    return found && relation == GW_OWNER ? found->owner : nullptr;
}

static int WINAPI AnswerText(HWND window, wchar_t* buffer, int size)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    return found ? Copy(found->title, buffer, size) : 0;
}

static int WINAPI AnswerClass(HWND window, wchar_t* buffer, int size)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    return found ? Copy(found->className, buffer, size) : 0;
}

static DWORD WINAPI AnswerProcess(HWND window, DWORD* processId)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    if (found) {
        *processId = found->processId;
    }
    return found ? 1 : 0;
}

static BOOL WINAPI AnswerRect(HWND window, RECT* rect)
{
    const ScriptedWindow* found = scriptedWindows->Ask(window);
    if (found) {
        *rect = found->rect;
    }
    return found != nullptr;
}

static DWORD WINAPI AnswerPath(HMODULE module, wchar_t* buffer, DWORD size)
{
    const auto processId = static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(module));
    scriptedWindows->askedPaths.push_back(processId);
    scriptedWindows->askedPathSizes.push_back(size);
    const auto found = scriptedWindows->paths.find(processId);
    return found == scriptedWindows->paths.end()
               ? 0
               : static_cast<DWORD>(Copy(found->second, buffer, static_cast<int>(size)));
}

static BOOL WINAPI AnswerEnumeration(WNDENUMPROC callback, LPARAM parameter)
{
    for (HWND window : std::vector<HWND>(scriptedWindows->order)) {
        if (!callback(window, parameter)) {
            return FALSE;
        }
    }
    return TRUE;
}

static LRESULT WINAPI TakeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    scriptedWindows->sent.push_back({window, message, wParam, lParam});
    return scriptedWindows->answer;
}

ScriptedWindows::ScriptedWindows()
    : hooks{{"IsWindowVisible", AnswerVisible}, {"IsWindowEnabled", AnswerEnabled},
            {"IsWindow", AnswerIsWindow},       {"GetWindowLongPtrW", AnswerLong},
            {"GetWindow", AnswerWindow},        {"GetWindowTextW", AnswerText},
            {"GetClassNameW", AnswerClass},     {"GetWindowThreadProcessId", AnswerProcess},
            {"GetWindowRect", AnswerRect},      {"GetModuleFileNameW", AnswerPath},
            {"EnumWindows", AnswerEnumeration}, {"SendMessageW", TakeMessage}}
{
    scriptedWindows = this;
}

ScriptedWindows::~ScriptedWindows()
{
    scriptedWindows = nullptr;
}

HWND ScriptedWindows::Add(const ScriptedWindow& window)
{
    // Even and ascending like real ones; the low word is that of no module.
    const auto handle = reinterpret_cast<HWND>(firstHandle + 2 * order.size());
    windows[handle] = window;
    order.push_back(handle);
    return handle;
}

const ScriptedWindow* ScriptedWindows::Ask(HWND window)
{
    if (lifeInQuestions == 0) {
        windows.clear();
    } else if (lifeInQuestions > 0) {
        lifeInQuestions--;
    }
    const auto found = windows.find(window);
    return found == windows.end() ? nullptr : &found->second;
}
