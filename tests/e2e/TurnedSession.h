// TurnedSession: Quorvane on a handheld that the tests turn.
#pragma once

#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

class TurnedSession : public ShellSession
{
  protected:
    const RECT uprightScreen = ScreenRect();

    // Leaves the handheld as it was.
    ~TurnedSession() override;

    // Turns the screen and waits until it has its other size.
    static void Turn(int orientation);
    void TurnSideways() const;
    void TurnUpright() const;
    // Waits until somebody has turned it.
    bool BecomesSideways() const;
    bool BecomesUpright() const;

    // The top bar, the program, its soft-key bar and the page have taken their places on the screen as it is
    // now.
    static void ExpectPlace(const char* name, const RECT& wanted, HWND window);
    void ExpectLaidOut(int page) const;
    // A dialog covers the screen above its own soft-key bar, and a control of it all of that.
    static void ExpectDialogFills(HWND dialog, int control);
    void Show(int page) const;

    std::vector<rig::Picture> Parts(int page) const;
    // What is on the screen would be the same if everything were painted anew.
    void ExpectNothingStale(int page) const;
};
