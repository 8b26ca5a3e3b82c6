// The figures of the memory status.
#include "platform/pc/common/MemoryFigures.h"

#include <algorithm>

namespace handheld {

// Of two counts that fill 64 bits the product does not fit, its share of the total does.
static unsigned long long Share(unsigned long long total, const Amount& real)
{
    if (real.total == 0) {
        return total;
    }
    const long double share = static_cast<long double>(total) * real.free / real.total;
    return share >= static_cast<long double>(total) ? total : static_cast<unsigned long long>(share);
}

Amount ScriptedAmount(const AmountScript& script, const Amount& real)
{
    if (!script.total) {
        return {real.total, script.free.value_or(real.free)};
    }
    return {*script.total, script.free ? *script.free : Share(*script.total, real)};
}

unsigned long Saturated(unsigned long long bytes)
{
    return static_cast<unsigned long>(std::min(bytes, 0xFFFFFFFFULL));
}

unsigned long LoadOf(const Amount& amount)
{
    if (amount.total == 0 || amount.free >= amount.total) {
        return 0;
    }
    return static_cast<unsigned long>(100.0L * (amount.total - amount.free) / amount.total);
}

} // namespace handheld
