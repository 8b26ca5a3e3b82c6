// Messages that the guest sends or passes on.
#include "tools/runner/bridges/ToHost.h"

#include "tools/runner/bridges/ActiveMessages.h"

namespace runner {

static constexpr MessageBridges (*messageSubjects[])() = {
    ControlMessages,
    ListViewMessages,
    TreeViewMessages,
    WindowMessages,
};

static const MessageBridge* FindMessage(UINT message)
{
    for (const auto subject : messageSubjects) {
        for (const MessageBridge& bridge : subject()) {
            if (bridge.message == message) {
                return &bridge;
            }
        }
    }
    return nullptr;
}

Word SendFromGuest(const Outgoing& out)
{
    const ActiveMessages& active = ActiveMessages::Instance();
    if (const ActiveMessage* passed = active.PassedOn(out.window, out.message, out.wParam, out.lParam)) {
        return static_cast<Word>(out.DeliverWith(passed->wParam, passed->lParam));
    }
    if (const MessageBridge* bridge = FindMessage(out.message)) {
        return bridge->handler(out);
    }
    // Handles stand in wParam, and numbers with a sign in those of controls; both keep it.
    return static_cast<Word>(out.DeliverWith(out.SignedWParam(), active.HostLParam(out.lParam)));
}

} // namespace runner
