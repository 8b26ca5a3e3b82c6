// HotKeyTable: who has claimed which key of the handheld.
#pragma once

#include "platform/pc/common/ControlWindow.h"

#include <vector>

namespace handheld {

class HotKeyTable
{
  public:
    // The shell has its keys from the start, with the modifier MOD_WIN, and gets them back when their
    // claimant lets go of them or ends.
    explicit HotKeyTable(std::vector<UINT> keysOfTheShell);

    // Does what is asked; a system error code.
    DWORD Answer(const KeyRequest& request);

    // A key goes down or up, with the modifier MOD_WIN. Its claimant is told, of the release too when it
    // asked for that with MOD_KEYUP and knows of the press. False when the key is nobody's but the shell's.
    bool Press(UINT key);
    void Release(UINT key);

  private:
    struct Claim
    {
        HWND window; // null: the shell
        DWORD thread;
        int id;
        UINT modifiers; // MOD_KEYUP included
        UINT key;
    };

    DWORD Add(const KeyRequest& request);
    DWORD Remove(HWND window, int id);
    DWORD Drop(UINT modifiers, UINT key);
    void ForgetDead();
    void GiveBack(const Claim& claim);
    std::vector<Claim>::iterator Find(UINT modifiers, UINT key);

    std::vector<UINT> shellKeys;
    std::vector<Claim> claims;
    std::vector<Claim> pressed; // those that were told of a press
};

} // namespace handheld
