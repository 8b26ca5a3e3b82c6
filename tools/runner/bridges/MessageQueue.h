// The guest's structures of messages in the queue.
#pragma once

#include "tools/runner/bridges/Host.h"
#include "tools/runner/bridges/MessageRecords.h"

namespace runner {

// What the host took from its queue, for the guest. A parameter that does not fit stays here.
void GiveQueued(const Record<guest::QueuedMessage>& record, const MSG& message);
// What the guest hands back: the host's own message, when it is one that it was given.
MSG TakeQueued(const Record<guest::QueuedMessage>& record);

} // namespace runner
