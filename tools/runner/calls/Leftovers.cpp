// What the guest was given to give back, and has not.
#include "tools/runner/calls/Leftovers.h"

namespace runner {

static bool MayBeKept(CookieKind kind)
{
    return kind == CookieKind::Module || kind == CookieKind::ImageList || kind == CookieKind::TreeItem ||
           kind == CookieKind::Process || kind == CookieKind::Heap;
}

std::string Leftovers(const Guest& guest)
{
    std::string text;
    const auto add = [&](const std::string& what, Address place) {
        text += (text.empty() ? "" : ", ") + what + " from " + PlaceText(place, &guest.symbols);
    };
    for (const GuestHeap::Leak& leak : guest.machine.heap.Leaks()) {
        add(std::to_string(leak.blocks) + " blocks of " + std::to_string(leak.bytes) + " bytes",
            leak.allocatedAt);
    }
    for (const Cookies::Entry& entry : guest.cookies.LiveEntries()) {
        if (!MayBeKept(entry.kind)) {
            add(NameOf(entry.kind), entry.place);
        }
    }
    return text;
}

} // namespace runner
