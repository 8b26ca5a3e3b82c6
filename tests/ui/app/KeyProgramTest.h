// What the tests of the hardware keys in the whole program start from: keys, timers, messages and the shell's
// claims are scripted.
#pragma once

#include "tests/support/ScriptedClaims.h"
#include "tests/support/ScriptedSettings.h"
#include "tests/ui/ProgramTest.h"

#include <set>

// The program on a device of the test's choice.
class KeyProgram : public ProgramApp
{
  public:
    Platform device = Platform::PocketPC;

    std::function<void()> created; // the main window is there, and nothing else

    bool CheckPrevInstance(HWND existingWindow, const wchar_t* line) override;
    bool OnCreate() override;

    // As another instance does.
    LRESULT HandOver(const SKeyCommand& command);
    // As the shell does, when the key goes down or comes up.
    void HotKey(UINT vk, UINT modifiers);
    void Timer(WPARAM timer);
};

class KeyProgramTest : public ProgramTest
{
  protected:
    ScriptedClaims claims;
    ScriptedSettings settings;
    std::set<int> down;              // the keys that are held
    std::vector<UINT> otherTimers;   // how long the timers of anything else take
    std::vector<int> asked;          // the keys whose state was asked for
    std::vector<std::string> events; // "timer 5 600", "kill 5", "action 1 0" as it is posted, "sleep 500"
    bool performs = false;           // the posted actions arrive

    KeyProgramTest();

    std::vector<std::string> TakeEvents();
    // Runs a test inside the program on that device; with what stands in its command line.
    void On(Platform device, const std::function<void(KeyProgram&)>& test, const wchar_t* commandLine = L"");

  private:
    SPY(GetAsyncKeyState) keyState;
    SPY(SetTimer) setTimer;
    SPY(KillTimer) killTimer;
    SPY(PostMessageW) post;
};
