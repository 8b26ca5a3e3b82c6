// Handles that the guest was given to give back.
#include "tools/runner/calls/GivenHandles.h"

namespace runner {

void GivenHandles::Give(Word handle, Address place)
{
    if (handle != 0) {
        Entry& entry = handles[handle];
        entry.times++;
        entry.place = place;
    }
}

bool GivenHandles::TakeBack(Word handle)
{
    const auto found = handles.find(handle);
    if (found == handles.end()) {
        return handle == 0;
    }
    if (--found->second.times == 0) {
        handles.erase(found);
    }
    return true;
}

} // namespace runner
