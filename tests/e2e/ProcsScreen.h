// ProcsScreen: the program on its page of processes, used as a user does; the tests of that page derive from
// it.
#pragma once

#include "resources/ids.h"
#include "rig/Actor.h"
#include "tests/e2e/PageScreen.h"

#include <optional>
#include <string>
#include <vector>

// One as the system lists it.
struct SessionProcess
{
    DWORD id;
    std::wstring name;
    DWORD threads;
};

class ProcsScreen : public PageScreen
{
  protected:
    ProcsScreen();

    // In the system's order.
    static std::vector<SessionProcess> Processes();
    // The place among them; nothing when it is not there.
    static std::optional<int> PlaceOf(DWORD process);
    // Whether the system still has a process with this id: running, or ended with a handle to it open.
    static bool IsKnown(DWORD process);

    // The path of a copy of actor.exe with another name.
    static std::wstring ActorNamed(const std::wstring& name);

    // The list as the system is now, while nothing starts or ends.
    void RefreshExactly() const;
    void SelectProcess(DWORD process) const;

    // By the menu's own item; the program is in front. Returns the question, null when it is not asked.
    HWND AskToEnd(DWORD process, const std::wstring& name) const;

    // The box in front with exactly this caption and text; null when another one or none comes.
    static HWND WaitForBox(const std::wstring& caption, const std::wstring& text);
    static HWND WaitForNoAnswerBox(); // that the process does not respond
    static HWND WaitForWarningBox();
    // Presses a key and waits until the box is gone.
    static void Answer(HWND box, WORD key);
    // The command is over without any box and the page can be used again.
    void ExpectUsable() const;
};

inline constexpr WORD yesKey = VK_F1;
inline constexpr WORD noKey = VK_F2;
