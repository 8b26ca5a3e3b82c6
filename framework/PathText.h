// Room for what the platform writes as a path, a window's title or its class.
#pragma once

#include "platform/ce.h"

inline constexpr uint32_t pathSize = 260; // characters, terminator included

// Empty until the platform has written into it, and always terminated when read: some calls fill the room
// without a terminator.
class CPathText
{
    wchar_t text[pathSize] = {};

  public:
    wchar_t* Room() { return text; }

    operator const wchar_t*()
    {
        text[pathSize - 1] = 0;
        return text;
    }
};
