// The shell's allocator.
#pragma once

#include <objidl.h>

// One for the whole process, of its heap. Releasing it ends nothing.
IMalloc* ShellAllocator();
