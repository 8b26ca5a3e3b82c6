// The figures of the memory status: the PC's, a profile's, and in the 32 bits that a device counts in.
#pragma once

#include "platform/pc/common/Scripts.h"

namespace handheld {

struct Amount
{
    unsigned long long total; // bytes
    unsigned long long free;
};

// Where only a total is scripted, as much of it is free as of the PC's: so the figure lives.
Amount ScriptedAmount(const AmountScript& script, const Amount& real);

// The largest number that fits in 32 bits for every larger one.
unsigned long Saturated(unsigned long long bytes);

// The percentage in use; 0 of nothing.
unsigned long LoadOf(const Amount& amount);

} // namespace handheld
