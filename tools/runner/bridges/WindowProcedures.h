// Which window procedures are the guest's, and numbers for those of the host's that it has replaced.
#pragma once

#include "tools/runner/bridges/Host.h"

#include <map>
#include <string>
#include <vector>

namespace runner {

class WindowProcedures
{
    std::map<std::wstring, Address> ofClasses;
    std::map<HWND, Address> ofWindows;
    std::vector<WNDPROC> hosts; // the guest sees a number for each
    Address ofNextDialog = 0;

  public:
    static WindowProcedures& Instance();

    // For all windows of a class that the guest registers.
    void SetOfClass(const wchar_t* className, Address procedure) { ofClasses[className] = procedure; }
    // For the dialog that is being created; 0 when it has been.
    void SetOfNextDialog(Address procedure) { ofNextDialog = procedure; }

    // As SetWindowLong does; gives the one before.
    Address Replace(HWND window, Address procedure);
    // The guest's own, or the number of the host's.
    Address Of(HWND window);
    // Null for what is no number of a host's.
    WNDPROC HostOf(Address procedure) const;

    // What the guest's windows and dialogs have on the host.
    static LRESULT CALLBACK OfWindows(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK OfDialogs(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  private:
    Address NumberOf(WNDPROC host);
    Address OwnOf(HWND window);
    Address OwnOfDialog(HWND window);
    LRESULT Give(Address procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

} // namespace runner
