// What a call out of the guest finds, and what it leaves behind.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

TEST(ImportCallTest, Arguments)
{
    SmallMachine guest;
    for (unsigned index = 0; index < 4; index++) {
        guest.before.r[index] = {10 + index, 0};
    }
    guest.before.r[4] = {14, 0};
    guest.before.r[5] = {15, 0};
    guest.Run({0xE92D4070, 0xE51FF004, TrapAddress(SmallMachine::endTrap)});
    Processor& processor = guest.machine.processor;
    for (unsigned index = 0; index < 6; index++) {
        EXPECT_EQ(processor.Argument(index), 10 + index);
    }
    processor.SpoilRegister(2, 12);
    ExpectFinding(FindingKind::Undefined, [&] { processor.Argument(2); });
    guest.machine.memory.MarkUndefined(SmallMachine::stackTop - 12, 4);
    ExpectFinding(FindingKind::Undefined, [&] { processor.Argument(5); });
}

TEST(ImportCallTest, OnlyWhatALibraryKeepsIsKept)
{
    SmallMachine guest;
    for (unsigned index = 0; index < StackRegister; index++) {
        guest.before.r[index] = {0x100 + index, 0};
    }
    guest.before.r[LinkRegister] = {SmallMachine::code + 8, 0};
    guest.Run({});
    Processor& processor = guest.machine.processor;
    EXPECT_EQ(processor.Place(), SmallMachine::code + 4);
    EXPECT_EQ(processor.Answer(42), SmallMachine::code + 8);
    EXPECT_EQ(processor.Register(0), 42u);
    EXPECT_TRUE(processor.IsDefined(0));
    for (const unsigned index : {1u, 2u, 3u, 12u, 14u}) {
        EXPECT_FALSE(processor.IsDefined(index)) << index;
        EXPECT_NE(processor.Register(index), 0x100 + index);
    }
    for (unsigned index = 4; index < ScratchRegister; index++) {
        EXPECT_TRUE(processor.IsDefined(index));
        EXPECT_EQ(processor.Register(index), 0x100 + index);
    }
    EXPECT_EQ(processor.Register(StackRegister), SmallMachine::stackTop);
    EXPECT_EQ(processor.State().flags.undefined, unsigned{AllFlags});
}

TEST(ImportCallTest, WideResult)
{
    SmallMachine guest;
    guest.Run({});
    guest.machine.processor.Answer64(0x1122334455667788);
    EXPECT_EQ(guest.Bits(0), 0x55667788u);
    EXPECT_EQ(guest.Bits(1), 0x11223344u);
    EXPECT_TRUE(guest.machine.processor.IsDefined(1));
    EXPECT_FALSE(guest.machine.processor.IsDefined(2));
}

// A function that takes it that an import leaves r3 or the flags alone.
TEST(ImportCallTest, RelianceOnWhatIsLostIsFound)
{
    const std::vector<std::vector<Word>> programs = {{0xE5931000}, {0x03A01001}, {0xE12FFF1E}};
    for (const std::vector<Word>& program : programs) {
        SmallMachine guest;
        Processor& processor = guest.machine.processor;
        guest.before.r[3] = {SmallMachine::data, 0};
        guest.Run({});
        std::memcpy(guest.machine.memory.Host(SmallMachine::code), program.data(), 4);
        processor.Answer(0);
        ExpectFinding(FindingKind::Undefined, [&] { processor.Run(SmallMachine::code); });
    }
}

// While a call is served, the guest is called in its turn.
TEST(ImportCallTest, CallsWithinCalls)
{
    SmallMachine guest;
    guest.before.r[LinkRegister] = {SmallMachine::code + 0x80, 0};
    guest.Run({0xE3A04004});
    Processor& processor = guest.machine.processor;
    const Registers saved = processor.State();
    const Word callback[] = {0xE92D4010, 0xE1A04000, 0xE2840001, 0xE8BD4010, 0xE12FFF1E};
    std::memcpy(guest.machine.memory.Host(SmallMachine::code + 0x40), callback, sizeof callback);
    processor.SetRegister(0, 6);
    processor.SetRegister(StackRegister, SmallMachine::stackTop - 64);
    processor.SetRegister(LinkRegister, TrapAddress(0));
    EXPECT_EQ(processor.Run(SmallMachine::code + 0x40), 0u);
    EXPECT_EQ(processor.Register(0), 7u);
    EXPECT_EQ(processor.Register(4), 4u);
    EXPECT_EQ(processor.Register(StackRegister), SmallMachine::stackTop - 64);
    processor.Restore(saved);
    EXPECT_EQ(processor.Register(StackRegister), SmallMachine::stackTop);
    EXPECT_EQ(processor.Place(), SmallMachine::code + 0x7C);
    // What the call had put there is gone.
    EXPECT_FALSE(guest.machine.memory.IsDefined(SmallMachine::stackTop - 72, 8));
}

} // namespace runner
