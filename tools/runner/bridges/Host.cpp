// The one guest of this process.
#include "tools/runner/bridges/Host.h"

namespace runner {

static Guest* theGuest = nullptr;

Guest& TheGuest()
{
    return *theGuest;
}

void SetTheGuest(Guest& guest)
{
    theGuest = &guest;
}

} // namespace runner
