// KeyLock: how locked keys are unlocked.
#include "platform/pc/common/KeyLock.h"

#include "platform/pc/common/SoftKeys.h"

namespace handheld {

// On the number pad, or where the keyboard's layout has it.
static bool IsStar(WPARAM key, bool isShiftDown)
{
    const SHORT star = VkKeyScanW(L'*');
    const bool needsShift = (HIBYTE(star) & 1) != 0;
    return key == VK_MULTIPLY || (star != -1 && key == LOBYTE(star) && isShiftDown == needsShift);
}

void KeyLock::Lock()
{
    state = State::Locked;
}

void KeyLock::Press(WPARAM key, bool isShiftDown)
{
    if (state == State::Locked) {
        if (SoftKeyIndex(key) == 0) {
            PressUnlock();
        }
    } else if (isSmartphone ? IsStar(key, isShiftDown) : key == VK_RETURN) {
        Confirm();
    } else {
        TakeBack();
    }
}

void KeyLock::PressUnlock()
{
    if (state == State::Locked) {
        state = State::Confirming;
    }
}

void KeyLock::Confirm()
{
    if (state == State::Confirming) {
        state = State::Open;
    }
}

void KeyLock::TakeBack()
{
    if (state == State::Confirming) {
        state = State::Locked;
    }
}

} // namespace handheld
