// The program's work does not grow unnoticed: instructions and calls of the platform, which are the same on
// every machine.
// profiles: pocketpc
#include "tests/runner/counts/CountTable.h"
#include "tests/runner/counts/Measuring.h"

#include <CountedBefore.h>

#include <gtest/gtest.h>

TEST(WorkGrowthTest, NoPartNeedsMoreThanFivePercentMoreThanWasMeasured)
{
    const std::vector<counts::Figure> measured = counts::MeasureAll(
        [](const std::string& missing) { ADD_FAILURE() << "this did not come about: " << missing; });
    for (const std::string& part : counts::Growth(counts::ReadTable(countedBefore), measured)) {
        ADD_FAILURE() << part << "\nWhen it has to be so, bench/counts prints the new table.";
    }
}
