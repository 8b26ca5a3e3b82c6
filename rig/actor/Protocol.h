// What a test says to actor.exe: orders by WM_COPYDATA to its control window, questions by registered
// messages.
#pragma once

#include <windows.h>

namespace actor {

// The control window is a message-only window of this class whose title is the process id in decimal.
inline constexpr wchar_t controlClass[] = L"QvActorControl";

// dwData of WM_COPYDATA.
enum Order : ULONG_PTR
{
    MakeWindow = 1,   // a WindowOrder; the answer is the window, or 0
    VanishWindow = 2, // an HWND: destroyed at once, without a WM_CLOSE
    FocusWindow = 3,  // an HWND: gets the focus of its thread
    StartThreads = 4, // a DWORD: so many threads more, which do nothing
    EndProcess = 5    // a DWORD: the process ends with this exit code
};

// What a window does with WM_CLOSE.
enum class Closing : int
{
    Close,
    Ignore,
    Delay, // closes after a pause during which it answers nothing
    Ask    // shows a box with Yes and No; closes on Yes
};

struct WindowOrder
{
    wchar_t className[300];
    wchar_t title[300];
    DWORD style; // WS_VISIBLE and WS_DISABLED included
    DWORD exStyle;
    HWND owner; // or the parent, for WS_CHILD
    RECT place;
    Closing closing;
    DWORD delay;     // ms, of Closing::Delay
    COLORREF colour; // of the client area
    BOOL endsActor;  // the process ends with this window
    DWORD exitCode;  // of that end
};

// Answered by the actor's windows; registered by RegisterWindowMessageW.
inline constexpr wchar_t closeCountMessage[] = L"QvActorCloseCount"; // the number of WM_CLOSE received so far
inline constexpr wchar_t moveCountMessage[] = L"QvActorMoveCount";   // the number of WM_MOUSEMOVE
inline constexpr wchar_t keyCountMessage[] = L"QvActorKeyCount"; // the number of WM_KEYDOWN received so far

} // namespace actor
