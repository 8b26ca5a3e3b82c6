// Memory figures: what a profile makes of the PC's, and counts that 32 bits do not hold.
#include "platform/pc/common/MemoryFigures.h"

#include <gtest/gtest.h>

using handheld::Amount;
using handheld::LoadOf;
using handheld::Saturated;
using handheld::ScriptedAmount;

static constexpr unsigned long long most = 0xFFFFFFFFFFFFFFFF;

TEST(MemoryFiguresTest, WhatDoesNotFitIn32BitsIsTheLargestThatDoes)
{
    EXPECT_EQ(Saturated(0), 0u);
    EXPECT_EQ(Saturated(0xFFFFFFFEull), 0xFFFFFFFEu);
    EXPECT_EQ(Saturated(0xFFFFFFFFull), 0xFFFFFFFFu);
    EXPECT_EQ(Saturated(0x100000000ull), 0xFFFFFFFFu);
    EXPECT_EQ(Saturated(0x5E298C000ull), 0xFFFFFFFFu);
    EXPECT_EQ(Saturated(most), 0xFFFFFFFFu);
}

TEST(MemoryFiguresTest, WithoutAScriptTheFiguresAreThePcs)
{
    const Amount amount = ScriptedAmount({}, {1000, 250});
    EXPECT_EQ(amount.total, 1000u);
    EXPECT_EQ(amount.free, 250u);
}

TEST(MemoryFiguresTest, AScriptedTotalHasThePcsFreeShare)
{
    EXPECT_EQ(ScriptedAmount({.total = 64, .free = {}}, {1000, 250}).free, 16u);
    EXPECT_EQ(ScriptedAmount({.total = 0, .free = {}}, {1000, 250}).free, 0u);
    EXPECT_EQ(ScriptedAmount({.total = 64, .free = {}}, {1000, 1000}).free, 64u);
    EXPECT_EQ(ScriptedAmount({.total = 64, .free = {}}, {1000, 0}).free, 0u);
    EXPECT_EQ(ScriptedAmount({.total = 64, .free = {}}, {0, 0}).free, 64u) << "nothing is not used up";
}

TEST(MemoryFiguresTest, TheShareOfTheLargestCountsDoesNotOverflow)
{
    EXPECT_EQ(ScriptedAmount({.total = most, .free = {}}, {most, most}).free, most);
    EXPECT_EQ(ScriptedAmount({.total = 1ull << 62, .free = {}}, {1ull << 47, 1ull << 46}).free, 1ull << 61);
}

TEST(MemoryFiguresTest, AScriptedFreeFigureIsTakenAsItIs)
{
    EXPECT_EQ(ScriptedAmount({.total = 64, .free = 65}, {1000, 250}).free, 65u);
    const Amount amount = ScriptedAmount({.total = {}, .free = 7}, {1000, 250});
    EXPECT_EQ(amount.total, 1000u);
    EXPECT_EQ(amount.free, 7u);
}

TEST(MemoryFiguresTest, TheLoadIsThePercentageInUse)
{
    EXPECT_EQ(LoadOf({200, 50}), 75u);
    EXPECT_EQ(LoadOf({200, 200}), 0u);
    EXPECT_EQ(LoadOf({200, 0}), 100u);
    EXPECT_EQ(LoadOf({0, 0}), 0u);
    EXPECT_EQ(LoadOf({200, 300}), 0u) << "more is free than there is";
}
