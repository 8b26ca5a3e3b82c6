// Start-up of the executable on the device: Headers.S calls it with what the system hands to a new process.
#include "platform/device/Aygshell.h"
#include "platform/device/LateFunction.h"
#include "platform/device/MobileFunctions.h"

#include "LateExports.h"

// Makes the library register the window classes of lists and trees. A library that has no such function
// registers them when it is loaded.
static void RegisterCommonControls()
{
    LateFunction initialise(late::InitCommonControlsEx, nullptr);
    initialise.LookUp();
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES};
    if (auto* function = initialise.As<BOOL WINAPI(const INITCOMMONCONTROLSEX*)>()) {
        function(&classes);
    }
}

static const wchar_t* processCommandLine = L"";

// Of the two ways to a command line, this is the one that is documented to leave out the program's name.
extern "C" wchar_t* WINAPI GetCommandLineW()
{
    return const_cast<wchar_t*>(processCommandLine);
}

extern "C" [[noreturn]] void ProgramStart(HINSTANCE instance, HINSTANCE previousInstance,
                                          const wchar_t* commandLine, int showCommand)
{
    if (commandLine) {
        processCommandLine = commandLine;
    }
    RegisterCommonControls();
    LookUpShellFunctions();
    LookUpMobileFunctions();
    const int result = ProgramMain(instance, previousInstance, processCommandLine, showCommand);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(result));
    // The call may return while the process is being taken down.
    for (;;) {
        Sleep(1000);
    }
}
