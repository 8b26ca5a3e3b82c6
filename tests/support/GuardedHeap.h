// Blocks that end at an unmapped page, and whose pages go away with them.
#pragma once

#include <cstddef>

void* GuardedAllocate(size_t size);

// As it was asked for.
size_t GuardedSize(const void* block);

// Ends the process when the block is none, was freed before, or was written behind its end.
void GuardedFree(void* block);
