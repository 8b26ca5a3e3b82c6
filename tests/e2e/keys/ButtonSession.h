// ButtonSession: the program running in front, and a shell that starts it again for a hardware button.
#pragma once

#include "rig/Actor.h"
#include "tests/e2e/ShellSession.h"

// The first application button of a device.
inline constexpr WORD buttonKey = 0xC1;

class ButtonSession : public ShellSession
{
  protected:
    ~ButtonSession() override;

    // Runs a second instance to its end, as the shell does for a button; what it does is another matter.
    static void Button(const std::wstring& commandLine);

    // A page shown by its command, the program still in front.
    void ShowPage(int page, int command) const;
    // Waits for a notice with this text.
    void ExpectNotice(const std::wstring& text) const;
    // The program has come forward on a page, ready for keys.
    void ExpectPage(int page) const;
};
