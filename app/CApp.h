// The application: start-up hand-over between instances, its pages, the commands they share, and the periodic
// refresh.
#pragma once

#include "framework/CResources.h"
#include "framework/CVireoApp.h"
#include "keys/SKeyPress.h"
#include "pages/PageTable.h"
#include "startmenu/CStartPrograms.h"

class CApp : public CVireoApp
{
  protected:
    CStartPrograms startPrograms;
    SKeyPress keyPress;              // of the button that started this instance, or that was handed over last
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
    void CloseAll();
    void ShowAbout();
    void HandOver(HWND runningInstance) const;
};
