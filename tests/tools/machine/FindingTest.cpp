// The line that is read by whoever has to find the fault.
#include "tools/runner/machine/Finding.h"

#include <gtest/gtest.h>

namespace runner {

static Finding Write(FindingKind kind)
{
    Finding finding;
    finding.kind = kind;
    finding.access = Access::Write;
    finding.address = 0x04000108;
    finding.size = 4;
    finding.place = 0x00015A3C;
    return finding;
}

TEST(FindingTest, PlaceAccessAndKind)
{
    EXPECT_EQ(Write(FindingKind::Unaligned).Line(nullptr),
              "0x00015a3c: write of 4 bytes at 0x04000108: unaligned");
    Finding undefined;
    undefined.kind = FindingKind::Undefined;
    undefined.text = "a condition depends on it";
    undefined.place = 0x10;
    EXPECT_EQ(undefined.Line(nullptr), "0x00000010: the value was never written: a condition depends on it");
}

TEST(FindingTest, BlockAndHowItWasMissed)
{
    Finding finding = Write(FindingKind::OutOfBlock);
    finding.block = Block{0x04000100, 8, 0x00015000, 0};
    EXPECT_EQ(
        finding.Line(nullptr),
        "0x00015a3c: write of 4 bytes at 0x04000108: outside every block of the heap; 0 bytes behind the "
        "block of 8 bytes at 0x04000100, allocated at 0x00015000");
    finding.address = 0x040000FC;
    EXPECT_NE(finding.Line(nullptr).find("; 4 bytes before the block of 8 bytes"), std::string::npos);
    finding = Write(FindingKind::Freed);
    finding.block = Block{0x04000100, 16, 0x00015000, 0x00016000};
    EXPECT_EQ(
        finding.Line(nullptr),
        "0x00015a3c: write of 4 bytes at 0x04000108: the block is freed; 8 bytes into the block of 16 bytes "
        "at 0x04000100, allocated at 0x00015000, freed at 0x00016000");
}

TEST(FindingTest, CallersFollow)
{
    Finding finding = Write(FindingKind::Unmapped);
    finding.callers = {0x100, 0x200};
    EXPECT_EQ(finding.Line(nullptr),
              "0x00015a3c: write of 4 bytes at 0x04000108: no memory there; called from "
              "0x00000100; called from 0x00000200");
}

} // namespace runner
