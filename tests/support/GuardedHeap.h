// Blocks that end at an unmapped page, and whose pages go away with them.
#pragma once

#include <cstddef>

void* GuardedAllocate(size_t size);

// Ends the process when the block is none, was freed before, or was written behind its end.
void GuardedFree(void* block);
