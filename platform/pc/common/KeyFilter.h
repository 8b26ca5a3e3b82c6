// KeyFilter: which keys of the PC's keyboard are the handheld's own, and what becomes of them.
#pragma once

#include "platform/pc/common/HandheldKeys.h"

#include <bitset>

namespace handheld {

struct KeyEvent
{
    enum class Kind
    {
        None,
        Pressed,    // a key of the handheld's own; once, however long it is held
        Released,   // the same key
        WhileLocked // any key, pressed while the keys are locked
    };

    Kind kind = Kind::None;
    int key = 0;            // Pressed, Released: the device's code; WhileLocked: the PC's
    bool swallowed = false; // no program must see it

    bool operator==(const KeyEvent& other) const = default;
};

class KeyFilter
{
  public:
    explicit KeyFilter(bool isASmartphone) : isSmartphone(isASmartphone) {}

    KeyEvent Press(const PcKey& key, bool isLocked);
    KeyEvent Release(const PcKey& key);

  private:
    bool isSmartphone;
    std::bitset<256> swallowed; // the PC's keys that are down without a program's knowing
    std::bitset<256> passed;    // those that a program knows of, and must hear the release of
    int held[256] = {};         // the keys of the handheld that they press; 0 for none
};

} // namespace handheld
