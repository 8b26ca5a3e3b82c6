// Start-up of the executable on the device: Headers.S calls it with what the system hands to a new process.
#include "platform/device/LateFunction.h"

// Makes the library register the window classes of lists and trees. A library that has no such function
// registers them when it is loaded.
static void RegisterCommonControls()
{
    static constinit LateFunction initialise(L"commctrl.dll", L"InitCommonControlsEx", nullptr);
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES};
    if (auto* function = initialise.As<BOOL WINAPI(const INITCOMMONCONTROLSEX*)>()) {
        function(&classes);
    }
}

extern "C" [[noreturn]] void ProgramStart(HINSTANCE instance, HINSTANCE previousInstance,
                                          const wchar_t* commandLine, int showCommand)
{
    RegisterCommonControls();
    const int result = ProgramMain(instance, previousInstance, commandLine, showCommand);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(result));
    // The call may return while the process is being taken down.
    for (;;) {
        Sleep(1000);
    }
}
