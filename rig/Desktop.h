// The windows on the handheld's screen, of whatever process, as a test sees them.
#pragma once

#include <windows.h>

#include <chrono>
#include <string>
#include <vector>

namespace rig {

// What a window must be; an empty or zero field does not matter.
struct WindowQuery
{
    std::wstring className = {};
    std::wstring title = {};
    DWORD process = 0;
    HWND owner = nullptr;
    bool visible = true;
};

// Front-most first.
std::vector<HWND> TopWindows();

// The front-most window that fits; null when there is none.
HWND FindTopWindow(const WindowQuery& query);

// The same, with patience.
HWND WaitForTopWindow(const WindowQuery& query);

// The first visible top-level window of a process whose class name begins so; null when there is none.
HWND FindTopWindowByPrefix(const std::wstring& classPrefix, DWORD process);

// The first descendant with this class name and, unless -1, this control id; null when there is none.
HWND FindDescendant(HWND parent, const std::wstring& className, int id = -1);

std::wstring ClassOf(HWND window);
DWORD ProcessOf(HWND window);

// The text of a window or control of any process, by WM_GETTEXT; empty when the window does not answer.
std::wstring TextOf(HWND window);

// The text of a message box, without its caption.
std::wstring BoxText(HWND box);

// The file name, without folder, of a process's executable; empty when it has ended.
std::wstring ExecutableOf(DWORD process);

// The open pop-up menu's window; null when no menu is open.
HWND OpenMenu();

// Lets every visible window paint now what it has still to paint.
void FinishPainting();

// The window that has the focus of that window's thread; null when none has.
HWND FocusOf(HWND window);

// Asks for the front and waits until the window is there; false when it does not get there.
bool BringToFront(HWND window);

// The same, and is before all other programs' windows in the system's order too, which lists of windows
// follow.
bool Raise(HWND window);

// SendMessage that gives up when the window does not answer in time.
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// Whether a window answers in that time. The system itself counts a program as hung only after five seconds.
bool Answers(HWND window, std::chrono::milliseconds timeout);

} // namespace rig
