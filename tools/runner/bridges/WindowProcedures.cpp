// Which window procedures are the guest's.
#include "tools/runner/bridges/WindowProcedures.h"

#include "tools/runner/bridges/ToGuest.h"

#include <algorithm>

namespace runner {

static constexpr Address firstNumber = 0xFFF00000; // of the host's; no code can be there

WindowProcedures& WindowProcedures::Instance()
{
    static WindowProcedures instance;
    return instance;
}

Address WindowProcedures::NumberOf(WNDPROC host)
{
    auto found = std::find(hosts.begin(), hosts.end(), host);
    if (found == hosts.end()) {
        found = hosts.insert(hosts.end(), host);
    }
    return firstNumber + static_cast<Address>(found - hosts.begin());
}

WNDPROC WindowProcedures::HostOf(Address procedure) const
{
    return procedure >= firstNumber && procedure - firstNumber < hosts.size() ? hosts[procedure - firstNumber]
                                                                              : nullptr;
}

Address WindowProcedures::OwnOf(HWND window)
{
    const auto own = ofWindows.find(window);
    if (own != ofWindows.end()) {
        return own->second;
    }
    wchar_t name[256];
    GetClassNameW(window, name, 256);
    const auto ofClass = ofClasses.find(name);
    return ofClass == ofClasses.end() ? 0 : ofWindows[window] = ofClass->second;
}

Address WindowProcedures::Of(HWND window)
{
    const Address own = OwnOf(window);
    return own != 0 ? own : NumberOf(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)));
}

Address WindowProcedures::Replace(HWND window, Address procedure)
{
    const Address before = OwnOf(window);
    if (const WNDPROC host = HostOf(procedure)) {
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(host));
        ofWindows.erase(window);
        return before;
    }
    ofWindows[window] = procedure;
    if (before != 0) {
        return before;
    }
    const LONG_PTR host = SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OfWindows));
    if (host == 0) {
        ofWindows.erase(window);
        return 0;
    }
    return NumberOf(reinterpret_cast<WNDPROC>(host));
}

LRESULT WindowProcedures::Give(Address procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = GiveToGuest(procedure, window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        ofWindows.erase(window);
    }
    return result;
}

LRESULT CALLBACK WindowProcedures::OfWindows(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    WindowProcedures& all = Instance();
    const Address procedure = all.OwnOf(window);
    return procedure != 0 ? all.Give(procedure, window, message, wParam, lParam)
                          : DefWindowProcW(window, message, wParam, lParam);
}

Address WindowProcedures::OwnOfDialog(HWND window)
{
    const auto own = ofWindows.find(window);
    if (own != ofWindows.end()) {
        return own->second;
    }
    const Address next = ofNextDialog;
    ofNextDialog = 0;
    return next == 0 ? 0 : ofWindows[window] = next;
}

INT_PTR CALLBACK WindowProcedures::OfDialogs(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    WindowProcedures& all = Instance();
    const Address procedure = all.OwnOfDialog(window);
    return procedure != 0 ? all.Give(procedure, window, message, wParam, lParam) : FALSE;
}

} // namespace runner
