// KeyFilter: which keys are the handheld's own.
#include "platform/pc/common/KeyFilter.h"

namespace handheld {

// Alone they do nothing, and the state of Shift must stay true: "*" may need it.
static bool IsShift(DWORD code)
{
    return code == VK_SHIFT || code == VK_LSHIFT || code == VK_RSHIFT;
}

KeyEvent KeyFilter::Press(const PcKey& key, bool isLocked)
{
    const DWORD code = key.code & 0xFF;
    if (swallowed[code] || (isLocked && passed[code] && !IsShift(code))) {
        return {KeyEvent::Kind::None, 0, true}; // a repeat
    }
    const int own = HandheldKeyOf(key, isSmartphone);
    if (isLocked ? IsShift(code) : own == 0) {
        passed[code] = true;
        return {};
    }
    swallowed[code] = true;
    if (isLocked) {
        return {KeyEvent::Kind::WhileLocked, static_cast<int>(code), true};
    }
    held[code] = own;
    return {KeyEvent::Kind::Pressed, own, true};
}

KeyEvent KeyFilter::Release(const PcKey& key)
{
    const DWORD code = key.code & 0xFF;
    passed[code] = false;
    if (!swallowed[code]) {
        return {};
    }
    const int own = held[code];
    swallowed[code] = false;
    held[code] = 0;
    return {own != 0 ? KeyEvent::Kind::Released : KeyEvent::Kind::None, own, true};
}

} // namespace handheld
