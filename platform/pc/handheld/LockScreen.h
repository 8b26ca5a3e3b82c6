// LockScreen: what stands above every program while the keys are locked.
#pragma once

#include "platform/pc/common/KeyLock.h"
#include "platform/pc/handheld/ShellWindow.h"

#include <functional>

class LockScreen final : public ShellWindow
{
  public:
    // unlocked: called when the user has unlocked the keys.
    explicit LockScreen(std::function<void()> unlocked);
    ~LockScreen() override;

    // Locks. False when there is no screen, and so no way to unlock.
    bool Open();
    // A key of the PC's keyboard.
    void PressKey(WPARAM key, bool isShiftDown);

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Paint(handheld::Surface& surface) override;
    void Tap(POINT point);
    void Show();
    bool CoversScreen() const;
    void CoverScreen() const;
    RECT SoftKey() const;
    RECT Button() const;

    std::function<void()> whenUnlocked;
    handheld::KeyLock lock;
    HFONT bold;
    HFONT large;
};
