// Ending a process.
#include "pages/procs/EndProcess.h"

#include "framework/CVireoApp.h"
#include "framework/WindowFacts.h"
#include "pages/procs/ProcessSnapshot.h"

static constexpr DWORD endingAccess = SYNCHRONIZE | PROCESS_TERMINATE;
static_assert(endingAccess == 0x100001);
static constexpr DWORD closingMs = 2000; // what a process gets to answer the request to close
static constexpr DWORD stillActive = 259;

static constexpr const wchar_t* protectedNames[] = {
    L"NK.EXE",      L"filesys.exe", L"device.exe",  L"services.exe", L"gwes.exe",
    L"shell32.exe", L"repllog.exe", L"connmgr.exe", L"cprog.exe",    L"ConManClient2.exe",
};

bool IsProtectedProcess(const CStr& name)
{
    for (const wchar_t* protectedName : protectedNames) {
        if (name.CompareNoCase(protectedName) == 0) {
            return true;
        }
    }
    return false;
}

// The main window may go while the box is open; then nothing is to be done any more, whatever it answers.
static bool AnswersYes(HWND owner, const wchar_t* question, const wchar_t* caption)
{
    return MessageBoxW(owner, question, caption, MB_YESNO) == IDYES && CVireoApp::Current()->HasMainWindow();
}

static bool IsConfirmed(HWND owner, const CStr& name)
{
    CStr question(L"End ");
    question.Append(name);
    question.Append(L"?");
    return AnswersYes(owner, question, L"End process");
}

static bool HasTwoTiers()
{
    DWORD tiers = 1;
    return SUCCEEDED(QueryPolicy(SECPOLICY_PRIVELEGEDAPPS, &tiers)) && tiers == 0;
}

static void TellRefused()
{
    CVireoApp::Current()->ShowNotice(
        HasTwoTiers() ? L"Tier 2 security of your device doesn't allow terminating processes."
                      : L"Can't end process");
}

// Posted, not sent: a window that hangs must not make the program hang.
static BOOL CALLBACK PostCloseProc(HWND window, LPARAM processId)
{
    if (WindowProcessId(window) == static_cast<DWORD>(processId)) {
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
}

// A process that ends with this very code counts as running. code: what was known before, for a system that
// does not tell.
static bool HasEnded(HANDLE process, DWORD& code)
{
    GetExitCodeProcess(process, &code);
    return code != stillActive;
}

static bool IsForceConfirmed(HWND owner)
{
    MessageBoxW(owner, L"Process does not respond to close message\n\nYou can terminate it.", L"End process",
                MB_OK);
    return CVireoApp::Current()->HasMainWindow() &&
           AnswersYes(owner,
                      L"WARNING: Terminating a process can cause undesired results including loss of data "
                      L"and system instability. The process will not be given the chance to save its state "
                      L"or data. Terminate the process?",
                      L"Terminate process");
}

static void Terminate(HANDLE process, DWORD& code)
{
    TerminateProcess(process, 0);
    if (!HasEnded(process, code)) {
        CVireoApp::Current()->ShowNotice(L"Can't kill process.");
    }
    CloseHandle(process);
}

static void TryToEnd(HWND owner, const SProcIdentity& process)
{
    HANDLE handle = OpenProcess(endingAccess, FALSE, process.id);
    if (handle == nullptr) {
        TellRefused();
        return;
    }
    // While the handle is open the id cannot be given again; before that, while the question was shown, it
    // could.
    if (IsTakenByAnother(process)) {
        CloseHandle(handle);
        CVireoApp::Current()->ShowNotice(L"Can't end process");
        return;
    }
    EnumWindows(PostCloseProc, static_cast<LPARAM>(process.id));
    WaitForSingleObject(handle, closingMs);
    // Unless it is ended by force the process's handle stays open, on purpose.
    DWORD code = 0;
    if (!HasEnded(handle, code) && IsForceConfirmed(owner)) {
        Terminate(handle, code);
    }
}

bool EndProcess(HWND owner, const SProcIdentity& process)
{
    CVireoApp* app = CVireoApp::Current();
    if (IsProtectedProcess(process.name)) {
        app->ShowNotice(L"It's forbidden to end this process!");
        return false;
    }
    if (process.name.CompareNoCase(L"Quorvane.exe") == 0) {
        PostMessageW(app->MainWindow(), WM_CLOSE, 0, 0);
        return false;
    }
    if (IsConfirmed(owner, process.name)) {
        TryToEnd(owner, process);
    }
    return app->HasMainWindow();
}
