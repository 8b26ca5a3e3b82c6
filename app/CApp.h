// The application: start-up hand-over between instances, its pages, the commands they share, and the periodic
// refresh.
#pragma once

#include "framework/CResources.h"
#include "framework/CVireoApp.h"
#include "keys/SKeyCommand.h"
#include "lists/CListPage.h"
#include "lists/IPageHost.h"
#include "lists/SAppsList.h"

class CApp : public CVireoApp, public IPageHost
{
  protected:
    CArray<SAppsList*> applications; // owns the entries
    CArray<int> knownApplications;   // index of each well-known program's entry, or -1
    uint32_t keyCode = 0;            // of the button that started this instance; 0 when started normally
    uint32_t shortAction = 0;
    uint32_t longAction = 0;
    CStr shortFile; // started by a short press whose action is to start a file
    CStr longFile;
    CResources* resources = nullptr; // open for the program's life

  public:
    CApp() = default;
    ~CApp() override = default;

    bool OnCreate() override;
    void OnDestroy() override;
    bool CheckPrevInstance(HWND existingWindow, const wchar_t* commandLine) override;
    void OnCommand(uint32_t id, uint32_t notifyCode, LPARAM control) override;
    void OnActivate() override;
    void OnDeactivate() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    int KnownApplicationIcon(uint32_t slot) override;
    void ShowWindowReport(HWND window) override;

    // Ends the open dialogs, activates a page and brings the program forward.
    void ShowPage(int32_t id);
    CResources* Resources() const { return resources; }

  private:
    void OpenResources();
    void AddPages();
    void AddPage(CVireoView* page, PageId id, uint32_t menuBarId, uint32_t acceleratorId);
    // Refreshes the current page; not the launcher, whose list changes only when asked to.
    bool HasRefreshablePage() const;
    void RefreshCurrentPage();
    void CloseAll();
    void ShowAbout();
    void SendKeyCommand(HWND runningInstance) const;
    LRESULT ReceiveKeyCommand(const COPYDATASTRUCT* data);
};
