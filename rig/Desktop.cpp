// The windows on the handheld's screen, of whatever process, as a test sees them.
#include "rig/Desktop.h"

#include "rig/WaitFor.h"

namespace rig {

static constexpr UINT answerTime = 5000; // ms
static constexpr int longestText = 32768;
static constexpr wchar_t menuClass[] = L"#32768";

static BOOL CALLBACK Collect(HWND window, LPARAM list)
{
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

// Its text is the title of the window in front, so a title alone does not mean it.
static bool IsTopBarByTitle(HWND window, const WindowQuery& query)
{
    return query.className.empty() && !query.title.empty() && ClassOf(window) == L"Shell_TrayWnd";
}

static bool Fits(HWND window, const WindowQuery& query)
{
    return !IsTopBarByTitle(window, query) && (!query.visible || IsWindowVisible(window)) &&
           (query.className.empty() || ClassOf(window) == query.className) &&
           (query.process == 0 || ProcessOf(window) == query.process) &&
           (!query.owner || GetWindow(window, GW_OWNER) == query.owner) &&
           (query.title.empty() || TextOf(window) == query.title);
}

static bool IsOrIsOwnedBy(HWND window, HWND owner)
{
    while (window && window != owner) {
        window = GetWindow(window, GW_OWNER);
    }
    return window != nullptr;
}

// Whether no other program's window is before it.
static bool IsFrontMost(HWND wanted)
{
    for (HWND window : TopWindows()) {
        if (IsWindowVisible(window) && !(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW)) {
            return IsOrIsOwnedBy(window, wanted);
        }
    }
    return false;
}

std::vector<HWND> TopWindows()
{
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

HWND FindTopWindow(const WindowQuery& query)
{
    for (HWND window : TopWindows()) {
        if (Fits(window, query)) {
            return window;
        }
    }
    return nullptr;
}

HWND WaitForTopWindow(const WindowQuery& query)
{
    return WaitFor([&] { return FindTopWindow(query); });
}

HWND FindTopWindowByPrefix(const std::wstring& classPrefix, DWORD process)
{
    for (HWND window : TopWindows()) {
        if (IsWindowVisible(window) && ProcessOf(window) == process &&
            ClassOf(window).starts_with(classPrefix)) {
            return window;
        }
    }
    return nullptr;
}

HWND FindDescendant(HWND parent, const std::wstring& className, int id)
{
    std::vector<HWND> windows;
    EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&windows));
    for (HWND window : windows) {
        if (ClassOf(window) == className && (id == -1 || GetDlgCtrlID(window) == id)) {
            return window;
        }
    }
    return nullptr;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[512];
    const int length = GetClassNameW(window, name, 512);
    return std::wstring(name, static_cast<size_t>(length));
}

DWORD ProcessOf(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

std::wstring TextOf(HWND window)
{
    std::wstring text(longestText, L'\0');
    const LRESULT length =
        Send(window, WM_GETTEXT, static_cast<WPARAM>(text.size()), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    return text;
}

std::wstring ExecutableOf(DWORD process)
{
    wchar_t path[MAX_PATH];
    DWORD size = MAX_PATH;
    const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    if (!handle) {
        return {};
    }
    const bool known = QueryFullProcessImageNameW(handle, 0, path, &size) != FALSE;
    CloseHandle(handle);
    if (!known) {
        return {};
    }
    const std::wstring whole(path, size);
    return whole.substr(whole.find_last_of(L'\\') + 1);
}

HWND OpenMenu()
{
    return FindTopWindow({.className = menuClass});
}

void FinishPainting()
{
    for (HWND window : TopWindows()) {
        if (IsWindowVisible(window)) {
            RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
    }
}

HWND FocusOf(HWND window)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

// A program that gets the front again while it is still losing it keeps its focus, and Wine's X driver, which
// acts on a change of the focus only, does not show it before the others. A program that hangs loses nothing.
static void AwaitLossOfFront(HWND window)
{
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    WaitFor(
        [=] {
            return GetWindowThreadProcessId(GetForegroundWindow(), nullptr) == thread || !FocusOf(window);
        },
        std::chrono::milliseconds(answerTime));
}

bool BringToFront(HWND window)
{
    return WaitFor([=] {
        if (GetForegroundWindow() == window) {
            return true;
        }
        AwaitLossOfFront(window);
        SetForegroundWindow(window);
        return GetForegroundWindow() == window;
    });
}

bool Raise(HWND window)
{
    // Wine shows the new foreground window before the others and leaves it where it was in its own order.
    return BringToFront(window) && WaitFor([=] {
               Send(window, WM_NULL); // its own thread must have taken notice of either
               SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
               return IsFrontMost(window);
           });
}

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, answerTime, &result);
    return static_cast<LRESULT>(result);
}

bool Answers(HWND window, std::chrono::milliseconds timeout)
{
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, static_cast<UINT>(timeout.count()),
                               &result) != 0;
}

std::wstring BoxText(HWND box)
{
    for (HWND child = nullptr; (child = FindWindowExW(box, child, L"Static", nullptr)) != nullptr;) {
        const std::wstring text = TextOf(child);
        if (!text.empty()) {
            return text;
        }
    }
    return {};
}

} // namespace rig
