// Instructions that make r0 out of r1 and r2, and the flags they leave.
#include "tests/tools/machine/Operation.h"

#include "tests/tools/machine/SmallMachine.h"

namespace runner {

void CheckOperations(std::span<const OperationRow> rows)
{
    for (const OperationRow& row : rows) {
        SCOPED_TRACE(row.text);
        SmallMachine guest;
        guest.before.r[0] = {untouched, 0};
        guest.before.r[1] = {row.a, 0};
        guest.before.r[2] = {row.b, 0};
        guest.before.flags = FlagsOf(row.flagsBefore);
        const Registers& after = guest.Run({row.instruction});
        EXPECT_EQ(after.Bits(0), row.result);
        EXPECT_EQ(FlagText(after.flags), row.flagsAfter);
    }
}

} // namespace runner
