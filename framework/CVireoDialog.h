// A modal dialog with a soft-key menu bar, run in a message loop of its own.
#pragma once

#include "platform/ce.h"

// Asks a dialog to end; wParam is the result. It may also be read by the loop of a menu or a box above the
// dialog.
inline constexpr UINT WM_DIALOG_END = WM_APP + 1;

class CVireoDialog
{
  protected:
    uint32_t menuBarId = 0;
    bool fullScreen = true;
    uint32_t acceleratorId = 0;
    bool runsInLoop = false;
    HWND window = nullptr;
    HACCEL accelerators = nullptr;
    HWND menuBar = nullptr;

  public:
    CVireoDialog() = default;
    CVireoDialog(const CVireoDialog&) = delete;
    CVireoDialog& operator=(const CVireoDialog&) = delete;

    virtual ~CVireoDialog();
    // The menu bar exists and the dialog is registered as open.
    virtual void OnInitDialog();
    // The dialog has left the list of open dialogs.
    virtual void OnDestroy();
    virtual void OnPaint(HDC deviceContext);
    virtual void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control);
    virtual void OnInitMenuPopup(HMENU menu, uint32_t index);
    // May change the prepared record before the menu bar is created from it.
    virtual void OnCreateMenuBar(SHMENUBARINFO& menuBarInfo);
    // Every other message; 0 means not handled.
    virtual INT_PTR DialogProc(UINT message, WPARAM wParam, LPARAM lParam);

    // Runs the dialog until it ends. The result is the one given to End; 0 when the shell refused the dialog,
    // when its window went while it was initialised, or when the program is closing. A template that is
    // missing or cannot be made into a window is fatal.
    int StartDialog(uint32_t templateId, uint32_t barId, uint32_t acceleratorTableId, bool coverScreen);
    // The same with an empty template.
    int StartDialogNoTemplate(uint32_t barId, uint32_t acceleratorTableId, bool coverScreen);
    // Asks the dialog to end; it is gone when its loop has read the request.
    void End(int result);

    HWND Window() const { return window; }

    // Gives the controls the page's width less a margin at both sides, keeping their tops and heights.
    static void StretchControls(HWND dialog, const int* controlIds, uint32_t count);
    static int Margin(); // pixels

  protected:
    // Ends the dialog on the commands that every dialog closes on: 1 and 6 with IDOK, 2 with IDCANCEL. False
    // for any other command.
    bool EndOnCloseCommand(uint32_t commandId);
    // Makes one control fill the client area.
    void FillClient(int controlId);
    // Puts the dialog where it belongs over the main window.
    void Place();

  private:
    bool reached = false; // the window came as far as its initialisation
    bool ended = false;   // the request to end has arrived
    int endResult = 0;

    int Start(const DLGTEMPLATE* dialogTemplate, uint32_t barId, uint32_t acceleratorTableId,
              bool coverScreen);
    int RunLoop();
    bool Initialise();
    bool MakeMenuBar();
    void AnchorToBottom(int bottom);
    void SettingChanged(WPARAM wParam, LPARAM lParam);
    INT_PTR HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK DialogWindowProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
};
