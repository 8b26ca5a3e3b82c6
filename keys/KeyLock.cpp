// Locking the device's keys.
#include "keys/KeyLock.h"

static constexpr BYTE lockKey = 0x85;
static constexpr BYTE smartphoneLockKey = 0xC6; // what a Smartphone needs besides

static void Press(BYTE vk)
{
    keybd_event(vk, 0, KEYEVENTF_EXTENDEDKEY, 0);
    keybd_event(vk, 0, KEYEVENTF_KEYUP, 0);
}

void LockKeys(Platform platform)
{
    Press(lockKey);
    if (platform == Platform::Smartphone) {
        Press(smartphoneLockKey);
    }
}
