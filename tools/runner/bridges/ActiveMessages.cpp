// The messages that the guest is handling.
#include "tools/runner/bridges/ActiveMessages.h"

namespace runner {

ActiveMessages& ActiveMessages::Instance()
{
    static ActiveMessages instance;
    return instance;
}

const ActiveMessage* ActiveMessages::PassedOn(HWND window, UINT message, Word wParam, Word lParam) const
{
    if (messages.empty()) {
        return nullptr;
    }
    const ActiveMessage& last = messages.back();
    const bool same = last.window == window && last.message == message && last.guestWParam == wParam &&
                      last.guestLParam == lParam;
    return same ? &last : nullptr;
}

LPARAM ActiveMessages::HostLParam(Word lParam) const
{
    if (lParam >= firstOpaque && lParam - firstOpaque < messages.size()) {
        return messages[lParam - firstOpaque].lParam;
    }
    return static_cast<LONG>(lParam);
}

} // namespace runner
