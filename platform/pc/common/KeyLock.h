// KeyLock: how locked keys are unlocked, in two steps, so that a pocket does not do it.
#pragma once

#include <windows.h>

namespace handheld {

class KeyLock
{
  public:
    enum class State
    {
        Open,
        Locked,
        Confirming // "Unlock" has been pressed
    };

    explicit KeyLock(bool isASmartphone) : isSmartphone(isASmartphone) {}

    State Now() const { return state; }
    bool IsLocked() const { return state != State::Open; }

    void Lock();
    // A key of the PC's keyboard. The left soft key asks; a Smartphone's "*", a Pocket PC's Enter confirms;
    // any other key takes the question back.
    void Press(WPARAM key, bool isShiftDown);
    // The left soft key or the button of the question, by a tap.
    void PressUnlock();
    void Confirm();
    // The question has stood for too long.
    void TakeBack();

  private:
    bool isSmartphone;
    State state = State::Open;
};

} // namespace handheld
