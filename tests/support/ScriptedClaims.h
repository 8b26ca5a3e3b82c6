// Who claims which keys, in place of the shell: every step of a claim is written down.
#pragma once

#include "platform/ce.h"
#include "tests/support/Spy.h"

#include <string>
#include <vector>

// One at a time.
class ScriptedClaims
{
  public:
    // "load coredll.dll", "find UnregisterFunc1", "drop 8 193", "claim <window> <id> <modifiers> <key>",
    // "release <window> <id>", "free"; <window> is 0 for none, else "window" for expectedWindow.
    std::vector<std::string> calls;
    HWND expectedWindow = nullptr;
    bool hasLibrary = true;
    bool hasFunction = true;

    ScriptedClaims();
    ~ScriptedClaims();
    ScriptedClaims(const ScriptedClaims&) = delete;
    ScriptedClaims& operator=(const ScriptedClaims&) = delete;

    // Takes what was written down so far.
    std::vector<std::string> TakeCalls();

  private:
    static ScriptedClaims* current;
    SPY(LoadLibraryW) load;
    SPY(GetProcAddressW) find;
    SPY(FreeLibrary) free;
    SPY(RegisterHotKey) claim;
    SPY(UnregisterHotKey) release;

    static BOOL WINAPI Drop(UINT modifiers, UINT vk);
    std::string Window(HWND window) const;
};
