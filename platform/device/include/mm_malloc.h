// <malloc.h> includes the compiler's header of this name for vector types, which the device does not have.
#pragma once
