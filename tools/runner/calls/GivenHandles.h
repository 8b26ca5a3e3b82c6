// Handles that the guest was given to give back: drawing objects, device contexts, menus.
#pragma once

#include "tools/runner/machine/Value.h"

#include <map>

namespace runner {

class GivenHandles
{
  public:
    struct Entry
    {
        unsigned times = 0; // a device context of the system's may be given more than once
        Address place = 0;  // that got it last
    };

  private:
    std::map<Word, Entry> handles;

  public:
    // Null is none.
    void Give(Word handle, Address place);
    // False for one that was not given, or was given back already.
    bool TakeBack(Word handle);
    const std::map<Word, Entry>& Left() const { return handles; }
};

} // namespace runner
