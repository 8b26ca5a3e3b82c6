// The messages that the guest is handling. What it passes on unchanged gets the host's own parameters back.
#pragma once

#include "tools/runner/bridges/Host.h"

#include <vector>

namespace runner {

struct ActiveMessage
{
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    Word guestWParam;
    Word guestLParam;
};

class ActiveMessages
{
    std::vector<ActiveMessage> messages; // the last one is the innermost

  public:
    static ActiveMessages& Instance();

    void Begin(const ActiveMessage& message) { messages.push_back(message); }
    void End() { messages.pop_back(); }

    // A parameter that the guest can only pass on: at this address nothing is mapped.
    Word NextOpaque() const { return firstOpaque + static_cast<Word>(messages.size()); }
    // The innermost message, when what the guest passes on is that; else null.
    const ActiveMessage* PassedOn(HWND window, UINT message, Word wParam, Word lParam) const;
    // What the host has for a parameter of the guest's: its own for an opaque one, else the word with its
    // sign.
    LPARAM HostLParam(Word lParam) const;

  private:
    static constexpr Word firstOpaque = 0xEEE00000;
};

} // namespace runner
