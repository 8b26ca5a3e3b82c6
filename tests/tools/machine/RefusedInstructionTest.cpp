// What the oldest of the devices' processors lack, and what means different things on different ones.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

struct RefusedRow
{
    const char* text;
    Word instruction;
};

static void ExpectRefused(FindingKind kind, std::span<const RefusedRow> rows)
{
    SmallMachine guest;
    // Nothing else is to be found wrong with them.
    for (unsigned index = 0; index < StackRegister; index++) {
        guest.before.r[index] = {SmallMachine::data + 0x100, 0};
    }
    for (const RefusedRow& row : rows) {
        SCOPED_TRACE(row.text);
        const Finding finding = FindingOf([&] { guest.Run({0xE1A08008, row.instruction}); });
        EXPECT_EQ(finding.kind, kind) << finding.Line(nullptr);
        EXPECT_EQ(finding.place, SmallMachine::code + 4);
    }
}

TEST(RefusedInstructionTest, Unknown)
{
    const RefusedRow rows[] = {
        {"clz r0, r1", 0xE16F0F11},
        {"blx r3", 0xE12FFF33},
        {"blx to a place", 0xFA000000},
        {"ldrd r2, [r0]", 0xE1C020D0},
        {"strd r2, [r0]", 0xE1C020F0},
        {"smulbb r0, r1, r2", 0xE1600281},
        {"qadd r0, r1, r2", 0xE1020051},
        {"uxtb r0, r1", 0xE6EF0071},
        {"movw r0, #1", 0xE3000001},
        {"mls r0, r1, r2, r3", 0xE0603291},
        {"ldrex r0, [r1]", 0xE1910F9F},
        {"pld [r1]", 0xF5D1F000},
        {"rev r0, r1", 0xE6BF0F31},
        {"nop of newer processors", 0xE320F000},
        {"svc 1", 0xEF000001},
        {"mcr p15, 0, r0, c7, c10, 5", 0xEE070FBA},
        {"vldr d0, [r0]", 0xED900B00},
        {"mrrc p15, 0, r0, r1, c2", 0xEC510F02},
        {"ldm of another mode's registers", 0xE8D10004},
        {"mrs r0, spsr", 0xE14F0000},
        {"msr cpsr_c, r0", 0xE121F000},
        {"msr spsr_f, r0", 0xE168F000},
        {"udf #0", 0xE7F000F0},
    };
    ExpectRefused(FindingKind::UnknownInstruction, rows);
}

TEST(RefusedInstructionTest, Unpredictable)
{
    const RefusedRow rows[] = {
        {"mul r0, r0, r1", 0xE0000190},
        {"mul r0, pc, r1", 0xE000019F},
        {"mul pc, r0, r1", 0xE00F0190},
        {"mla r0, r1, r2, pc", 0xE020F291},
        {"umull r0, r0, r1, r2", 0xE0800291},
        {"umull r0, r3, r0, r2", 0xE0830290},
        {"smlal r0, pc, r1, r2", 0xE0EF0291},
        {"add r0, pc, r1, lsl r2", 0xE08F0211},
        {"add pc, r0, r1, lsl r2", 0xE080F211},
        {"mov r0, pc, lsl r2", 0xE1A0021F},
        {"mov r0, r1, lsl pc", 0xE1A00F11},
        {"movs pc, lr", 0xE1B0F00E},
        {"ldr r1, [r1], #4", 0xE4911004},
        {"str r1, [r1, #4]!", 0xE5A11004},
        {"ldr r0, [pc, #4]!", 0xE5BF0004},
        {"ldr r0, [r1, pc]", 0xE791000F},
        {"ldrb pc, [r1]", 0xE5D1F000},
        {"ldrh pc, [r1]", 0xE1D1F0B0},
        {"ldrh r0, [r1, pc]", 0xE19100BF},
        {"ldmia r1!, {r1, r2}", 0xE8B10006},
        {"stmia r2!, {r1, r2}", 0xE8A20006},
        {"stmia r1, {}", 0xE8810000},
        {"ldmia pc, {r0}", 0xE89F0001},
        {"swp r0, r1, [r1]", 0xE1010091},
        {"swp r1, r0, [r1]", 0xE1011090},
        {"swp r0, pc, [r1]", 0xE101009F},
        {"bx pc", 0xE12FFF1F},
    };
    ExpectRefused(FindingKind::Unpredictable, rows);
}

} // namespace runner
