// The application object: the main window, its views of which one is active, open dialogs, and the message
// loop.
#pragma once

#include "framework/ArrayNames.h"
#include "framework/CArray.h"
#include "framework/CStr.h"
#include "platform/ce.h"

class CVireoView;
class CVireoDialog;
class CVireoInfowin;

QV_ARRAY_NAMES(CVireoView*, "class CVireoView *");
QV_ARRAY_NAMES(CVireoDialog*, "class CVireoDialog *");

enum class Platform : uint32_t
{
    Unknown = 0,
    PocketPC = 1,
    Smartphone = 2
};

// How the info window is placed over the main window; bits of its placement argument.
enum InfoPlacement : uint32_t
{
    InfoCentreX = 1,
    InfoRight = 2,
    InfoCentreY = 16,
    InfoBottom = 32
};

// Exactly one exists, on the stack of the program's entry; everything else reaches it through Current().
class CVireoApp
{
  protected:
    HINSTANCE instance = nullptr;
    HWND mainWindow = nullptr;                // during start-up: the window of an instance that already runs
    HWND menuBar = nullptr;                   // of the active view; null when there is none
    CArray<CVireoView*>* views = nullptr;     // owns the views
    CArray<CVireoDialog*>* dialogs = nullptr; // open ones in opening order, not owned
    CVireoView* activeView = nullptr;
    SHACTIVATEINFO activateInfo = {};
    Platform platform = Platform::Unknown;
    uint32_t osMajor = 0;
    uint32_t osMinor = 0;
    uint32_t osBuild = 0;
    CVireoInfowin* infoWindow = nullptr; // the application's notices
    CVireoInfowin* secondInfoWindow = nullptr;
    bool startMinimised = false;
    int32_t initialViewId = -1; // -1: the first view

  public:
    CVireoApp();
    CVireoApp(const CVireoApp&) = delete;
    CVireoApp& operator=(const CVireoApp&) = delete;
    virtual ~CVireoApp();

    // The main window, menu bar and info windows exist: create and add the views. False aborts the start.
    virtual bool OnCreate();
    // The main window is going; views, dialogs, menu bar and info windows are gone already.
    virtual void OnDestroy();
    // Whether to go on starting. existingWindow is an earlier instance's main window or null; the base brings
    // it forward and declines. commandLine is the whole command line.
    virtual bool CheckPrevInstance(HWND existingWindow, const wchar_t* commandLine);
    // WM_COMMAND and WM_INITMENUPOPUP while no view is active; views pass on commands that they do not know.
    virtual void OnCommand(uint32_t id, uint32_t notifyCode, LPARAM control);
    virtual void OnInitMenuPopup(HMENU menu, uint32_t index);
    virtual void OnActivate();
    virtual void OnDeactivate();
    // Every message of the main window that the framework does not handle itself.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    static CVireoApp* Current();

    // The program's life. 0 also when another instance took over or no window could be made, -1 when OnCreate
    // refused.
    int Run(uint32_t titleStringId, uint32_t iconId, uint32_t acceleratorId, HINSTANCE moduleInstance,
            HINSTANCE previousInstance, const wchar_t* commandLine, int showCommand);

    // The executable's file name without folder and extension; fatal "Not found" when there is none.
    static void MakeAppBaseName(CStr& out);
    // The same for any module path; fatal when it lacks a backslash, a dot, or text between them.
    static void MakeBaseName(CStr& out, const wchar_t* modulePath);

    // Shows the first view with this id; fatal "Not found" without one. Nothing happens when it is active
    // already.
    void ActivateView(int32_t id);
    // The application owns the view from here on.
    void AddView(CVireoView* view);

    // A notice over the main window; hideAfterMs 0 leaves it until HideInfo or a tap. placement:
    // InfoPlacement bits.
    void ShowInfo(const wchar_t* text, uint32_t hideAfterMs, uint32_t placement);
    void HideInfo();
    // The one form in which the program tells the user something in passing.
    void ShowNotice(const wchar_t* text);

    // Modality: a dialog begins it before its loop and ends it before its window goes. The main window takes
    // no input in between. Without a main window, before its creation and after its end, nothing happens.
    void BeginModal();
    void EndModal();
    // The dialogs that are open, in opening order.
    void DialogOpened(CVireoDialog* dialog);
    void DialogClosed(CVireoDialog* dialog);
    // Ends every one of them, newest first, with IDCANCEL. The dialogs go when their loops read it.
    void EndAllDialogs();

    // Replaces the current soft-key bar; false, and no bar, when the shell refuses.
    bool CreateMenuBar(HWND parent, uint32_t menuBarId);

    HINSTANCE Instance() const { return instance; }
    HWND MainWindow() const { return mainWindow; }
    HWND MenuBar() const { return menuBar; }
    CVireoView* ActiveView() const { return activeView; }
    Platform PlatformKind() const { return platform; }
    SHACTIVATEINFO* ActivateInfo() { return &activateInfo; }
    // False once the main window went, as it may during any call that pumps messages.
    bool HasMainWindow() const { return mainWindow != nullptr && IsWindow(mainWindow); }

  private:
    void DetectPlatform();
    bool CreateMainWindow(const wchar_t* className, const wchar_t* title, uint32_t iconId);
    void MakeRoomForMenuBar();
    int RunLoop(uint32_t acceleratorId);
    CVireoView* FindView(int32_t id) const;
    void EnableMainWindow(BOOL enabled);
    void Tear();
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

// Brings a window and the windows it owns to the front.
void BringToFront(HWND window);
