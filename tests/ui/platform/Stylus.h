// A stylus on the screen, held down while the program waits for a gesture.
#pragma once

#include "tests/support/ImportHook.h"

#include <functional>

// Real input and no real time: the shell's waiting passes at once, so a gesture lasts as long as it is asked
// for.
class Stylus
{
  public:
    Stylus();
    ~Stylus(); // lifts it
    Stylus(const Stylus&) = delete;
    Stylus& operator=(const Stylus&) = delete;

    static void Press(POINT screen);
    static void Move(POINT screen);
    static void Lift();

    // To be done once, in the middle of the wait.
    void Then(std::function<void()> action);
    // How long the shell has waited.
    static DWORD Waited();

  private:
    static void WINAPI PassTime(DWORD milliseconds);
    static DWORD WINAPI Time();

    ImportHook sleep;
    ImportHook tickCount;
};
