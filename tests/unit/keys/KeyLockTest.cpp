// Locking the device's keys.
#include "keys/KeyLock.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Pressed
{
    BYTE vk;
    BYTE scanCode;
    DWORD flags;
    ULONG_PTR extra;

    bool operator==(const Pressed&) const = default;
};

} // namespace

static std::vector<Pressed> pressed;

static void WINAPI NotePress(BYTE vk, BYTE scanCode, DWORD flags, ULONG_PTR extra)
{
    pressed.push_back({vk, scanCode, flags, extra});
}

class KeyLockTest : public testing::Test
{
  protected:
    ImportHook hook{"keybd_event", NotePress};

    KeyLockTest() { pressed.clear(); }
};

TEST_F(KeyLockTest, APocketPCHasOneKeyForIt)
{
    for (const Platform platform : {Platform::PocketPC, Platform::Unknown}) {
        pressed.clear();
        LockKeys(platform);
        EXPECT_EQ(pressed, (std::vector<Pressed>{{0x85, 0, 1, 0}, {0x85, 0, 2, 0}}));
    }
}

TEST_F(KeyLockTest, ASmartphoneHasTwo)
{
    LockKeys(Platform::Smartphone);
    EXPECT_EQ(pressed,
              (std::vector<Pressed>{{0x85, 0, 1, 0}, {0x85, 0, 2, 0}, {0xC6, 0, 1, 0}, {0xC6, 0, 2, 0}}));
}
