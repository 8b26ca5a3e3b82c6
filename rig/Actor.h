// Actor: a running actor.exe and its windows, for tests that need other programs with particular windows.
#pragma once

#include "rig/ChildProcess.h"
#include "rig/actor/Protocol.h"

#include <string>

namespace rig {

// A window to be made; by default a plain visible program window.
struct ActorWindowSpec
{
    std::wstring className = L"QvActor";
    std::wstring title = L"Actor";
    DWORD style = WS_POPUP | WS_VISIBLE;
    DWORD exStyle = 0;
    HWND owner = nullptr; // the parent with WS_CHILD
    RECT place = {0, 26, 200, 126};
    actor::Closing closing = actor::Closing::Close;
    DWORD delay = 0; // ms
    COLORREF colour = RGB(0, 128, 0);
    bool endsActor = false;
    DWORD exitCode = 0;
};

class Actor
{
    ChildProcess process;
    HWND control = nullptr;

  public:
    // Starts the program and waits for it. From another executable than actor.exe when its name matters to a
    // test.
    explicit Actor(const std::wstring& executable = ProgramFolder() + L"\\actor.exe");

    bool Ready() const { return control != nullptr; }
    DWORD Process() const { return process.Id(); }
    bool Running() const { return process.Running(); }

    // Null when the window cannot be made.
    HWND Make(const ActorWindowSpec& spec) const;
    // The window is gone at once, as when its program takes it away.
    void Vanish(HWND window) const;
    // The window's own program gives it the focus.
    void Focus(HWND window) const;
    // Threads that only wait.
    void StartThreads(DWORD count) const;
    // The process ends by itself, soon after this.
    void Leave(DWORD exitCode = 0) const;
    std::optional<DWORD> ExitCode(std::chrono::milliseconds timeout = std::chrono::milliseconds(0)) const
    {
        return process.ExitCode(timeout);
    }
    // Ends the process without asking.
    void Kill() { process.Terminate(); }
};

// The program of a window with Closing::Delay stops answering for that time; false when it goes on.
bool Hang(HWND window);

// How many WM_CLOSE messages a living actor window has received, how many key presses, and how many movements
// of the stylus.
int CloseCount(HWND window);
int KeyCount(HWND window);
int MoveCount(HWND window);

} // namespace rig
