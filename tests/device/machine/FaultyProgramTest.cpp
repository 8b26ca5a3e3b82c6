// Faults of compiled programs, each found and named.
#include "tests/device/machine/ProgramRun.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace runner {

struct FaultRow
{
    char16_t letter;
    FindingKind kind;
    std::string function; // that does it, or one that called it
};

static bool IsInvolved(const ProgramRun& program, const Finding& finding, const std::string& function)
{
    return program.FunctionOf(finding.place).starts_with(function) ||
           std::ranges::any_of(finding.callers, [&](Address caller) {
               return program.FunctionOf(caller).starts_with(function);
           });
}

TEST(FaultyProgramTest, EveryFaultIsFound)
{
    const FaultRow rows[] = {
        {u'a', FindingKind::Unaligned, "Unaligned"},    {u'b', FindingKind::Unmapped, "ProgramMain"},
        {u'c', FindingKind::Protected, "StoreThrough"}, {u'd', FindingKind::OutOfBlock, "BehindBlock"},
        {u'e', FindingKind::Freed, "AfterDelete"},      {u'f', FindingKind::Freed, "DeletedTwice"},
        {u'g', FindingKind::Undefined, "NeverWritten"}, {u'h', FindingKind::Undefined, "HandedOver"},
        {u'i', FindingKind::BelowStack, "ProgramMain"}, {u'j', FindingKind::StackOverflow, "Deeper"},
        {u'k', FindingKind::Protected, "ProgramMain"},
    };
    for (const FaultRow& row : rows) {
        ProgramRun program(QV_FAULTY_PROGRAM);
        const std::optional<Finding> finding = program.Run(std::u16string(1, row.letter));
        ASSERT_TRUE(finding) << row.function;
        EXPECT_EQ(finding->kind, row.kind) << program.Line(*finding);
        EXPECT_TRUE(IsInvolved(program, *finding, row.function)) << program.Line(*finding);
    }
}

TEST(FaultyProgramTest, WithoutAFaultNothingIsFound)
{
    ProgramRun program(QV_FAULTY_PROGRAM);
    const std::optional<Finding> finding = program.Run(u"");
    ASSERT_FALSE(finding) << program.Line(*finding);
    const std::vector<Word> expected = {2, 55};
    EXPECT_EQ(program.Calls(), expected);
    EXPECT_EQ(program.Heap().LiveBlocks(), 0u);
    EXPECT_EQ(program.Heap().Allocations(), 2u);
}

TEST(FaultyProgramTest, BlocksNameWhoWantedThem)
{
    ProgramRun program(QV_FAULTY_PROGRAM);
    const std::optional<Finding> finding = program.Run(u"d");
    ASSERT_TRUE(finding && finding->block);
    EXPECT_EQ(finding->block->size, 16u);
    EXPECT_TRUE(program.FunctionOf(finding->block->allocatedAt).starts_with("BehindBlock"));
}

} // namespace runner
