// The machine's results are those of the building machine's own processor.
#include "tests/device/machine/Computations.h"

#include "tests/device/machine/ProgramRun.h"

#include <gtest/gtest.h>

namespace runner {

TEST(ComputationsTest, AreTheSameOnBothMachines)
{
    ProgramRun program(QV_COMPUTING_PROGRAM);
    const std::optional<Finding> finding = program.Run(u"");
    ASSERT_FALSE(finding) << program.Line(*finding);
    ASSERT_EQ(program.Calls().size(), computations::computationCount);
    for (unsigned index = 0; index < computations::computationCount; index++) {
        EXPECT_EQ(program.Calls()[index], computations::computations[index].run())
            << computations::computations[index].name;
    }
}

} // namespace runner
