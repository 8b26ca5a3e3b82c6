// Dialogs from templates.
#include <windows.h>

// A dialog that destroys itself while it is set up was not created: Wine 8.0 returns the handle of the window
// that has gone.
extern "C" HWND WINAPI ce_CreateDialogIndirectParamW(HINSTANCE instance, const DLGTEMPLATE* dialogTemplate,
                                                     HWND owner, DLGPROC procedure, LPARAM parameter)
{
    const HWND dialog = CreateDialogIndirectParamW(instance, dialogTemplate, owner, procedure, parameter);
    return dialog && IsWindow(dialog) ? dialog : nullptr;
}
