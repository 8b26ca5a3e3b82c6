// The application: start-up hand-over between instances, its pages, the commands they share, and the periodic
// refresh. What it does for the hardware keys is in CAppKeys.cpp and CAppActions.cpp.
#pragma once

#include "framework/CResources.h"
#include "framework/CVireoApp.h"
#include "keys/SHomeKey.h"
#include "keys/SKeyPress.h"
#include "pages/PageTable.h"
#include "startmenu/CStartPrograms.h"

// The main window's timers.
enum AppTimer : UINT_PTR
{
    RefreshTimer = 1,
    HoldTimer = 5, // a button's press or hold
    HomeTimer = 6  // the Home key's hold
};

class CApp : public CVireoApp
{
  protected:
    CStartPrograms startPrograms;
    SKeyPress keyPress;    // of the button that started this instance, or that was handed over last
    bool homeHeld = false; // the Home key has been held for long, and has not come up yet
    SHomeKey homeKey;
    CResources* resources = nullptr; // open for the program's life

  public:
    bool OnCreate() override;
    void OnDestroy() override;
    bool CheckPrevInstance(HWND existingWindow, const wchar_t* commandLine) override;
    void OnCommand(uint32_t id, uint32_t notifyCode, LPARAM control) override;
    void OnActivate() override;
    void OnDeactivate() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Ends the open dialogs, activates a page and brings the program forward.
    void ShowPage(int32_t id);

  private:
    void OpenResources();
    void AddPages();
    void AddPage(CVireoView* page, PageId id, uint32_t menuBarId, uint32_t acceleratorId);
    // Refreshes the current page; not the launcher, whose list changes only when asked to.
    bool HasRefreshablePage() const;
    void RefreshCurrentPage();
    // All applications but the program itself and, unless null, one more.
    void CloseAll(HWND spared);
    void ShowHardwareKeys();
    void ShowAbout();
    void HandOver(HWND runningInstance) const;

    bool WantsHomeKey() const;
    void ClaimKeys();
    void UnclaimKeys();
    // A button has gone down: performs its press at once when it is up again, else when it is known for how
    // long it is held.
    void AwaitRelease();
    void OnTimer(WPARAM timer);
    void OnHoldTimer();
    void OnHomeKey(bool up);
    void OnHomeTimer();
    void PostAction(WPARAM pressLength) const;

    void PerformAction(WPARAM pressLength);
    void ShowPageByKey(int32_t id);
    void CloseCurrent();
    void CloseOthers();
};
