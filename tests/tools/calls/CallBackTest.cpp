// Calls into the guest, and of the guest.
#include "tests/tools/calls/SmallGuest.h"

namespace runner {

TEST(CallBackTest, TheResultComesBackAndTheRegistersStay)
{
    SmallGuest small;
    const Address function = small.Put({0xE0800001, 0xE12FFF1E}); // add r0, r0, r1; bx lr
    small.guest.machine.processor.SetRegister(1, 77);
    const Word stack = small.guest.machine.processor.Register(StackRegister);
    EXPECT_EQ(small.guest.CallBack(function, 2, 3), 5u);
    EXPECT_EQ(small.guest.machine.processor.Register(1), 77u);
    EXPECT_EQ(small.guest.machine.processor.Register(StackRegister), stack);
}

TEST(CallBackTest, EveryOtherStackIsAlignedToFourBytesOnly)
{
    SmallGuest small;
    const Address function = small.Put({0xE1A0000D, 0xE12FFF1E}); // mov r0, sp; bx lr
    Word odd = 0;
    for (int i = 0; i < 10; i++) {
        const Word stack = small.guest.CallBack(function);
        EXPECT_EQ(stack % 4, 0u);
        odd += stack % 8 != 0 ? 1u : 0u;
    }
    EXPECT_EQ(odd, 5u);
}

// Within a call of one kind the next one is of the other.
TEST(CallBackTest, SoIsThatOfACallInACall)
{
    SmallGuest small;
    static constexpr Word functionOffset = 0x100;
    small.Put({0xE1A0000D, 0xE12FFF1E}, functionOffset);
    const auto nested = [](Call& call) { return call.guest.CallBack(SmallGuest::code + functionOffset); };
    const Address outer = small.PutCallOf(small.guest.AddTrap("Nested", {"Nested", nested}));
    const Word first = small.guest.CallBack(outer);
    const Word second = small.guest.CallBack(outer);
    EXPECT_NE(first % 8, second % 8);
}

TEST(CallBackTest, AKeptRegisterThatChangesIsFound)
{
    SmallGuest small;
    const Address function = small.Put({0xE3A04001, 0xE12FFF1E}); // mov r4, #1; bx lr
    const Finding finding = FindingOf([&] { small.guest.CallBack(function); });
    EXPECT_EQ(finding.kind, FindingKind::Misuse);
    EXPECT_NE(finding.text.find("r4"), std::string::npos) << finding.text;
    EXPECT_EQ(finding.place, function + wordSize);
}

TEST(CallBackTest, AStackPointerThatChangesIsFound)
{
    SmallGuest small;
    const Address function = small.Put({0xE24DD008, 0xE12FFF1E}); // sub sp, sp, #8; bx lr
    const Finding finding = FindingOf([&] { small.guest.CallBack(function); });
    EXPECT_NE(finding.text.find("r13"), std::string::npos) << finding.text;
}

TEST(CallBackTest, AHandlerFindsItsParametersAndItsData)
{
    SmallGuest small;
    const auto handler = [](Call& call) {
        return call.Argument(0) * 10 + call.Argument(3) + static_cast<Word>(call.Data());
    };
    const Address function = small.PutCallOf(small.guest.AddTrap("Sum", {"Sum", handler}, nullptr, 1000));
    EXPECT_EQ(small.guest.CallBack(function, 4, 0, 0, 2), 1042u);
    EXPECT_EQ(small.guest.counts.Imports().at("Sum"), 1u);
}

TEST(CallBackTest, WhatAFunctionWithoutAResultLeavesIsUndefined)
{
    SmallGuest small;
    const auto handler = [](Call& call) { return call.NoResult(); };
    const Address trap = small.guest.AddTrap("Nothing", {"Nothing", handler});
    // The result decides: push {lr}; ldr ip, [pc, #16]; mov lr, pc; bx ip; cmp r0, #0; moveq r0, #1; pop {pc}
    const Address function =
        small.Put({0xE52DE004, 0xE59FC010, 0xE1A0E00F, 0xE12FFF1C, 0xE3500000, 0x03A00001, 0xE49DF004, trap});
    EXPECT_EQ(FindingOf([&] { small.guest.CallBack(function); }).kind, FindingKind::Undefined);
}

// The system leaves anything in the registers and flags that it hands nothing over in.
TEST(CallBackTest, WhatNobodyHandsOverIsUndefined)
{
    SmallGuest small;
    const Address scratch =
        small.Put({0xE35C0000, 0x03A00001, 0xE12FFF1E}); // cmp ip, #0; moveq r0, #1; bx lr
    EXPECT_EQ(FindingOf([&] { small.guest.CallBack(scratch); }).kind, FindingKind::Undefined);
    const Address flags = small.Put({0x03A00001, 0xE12FFF1E}); // moveq r0, #1; bx lr
    EXPECT_EQ(FindingOf([&] { small.guest.CallBack(flags); }).kind, FindingKind::Undefined);
}

TEST(CallBackTest, AResultThatNobodyWroteIsFound)
{
    SmallGuest small;
    const Address function = small.Put({0xE1A0000C, 0xE12FFF1E}); // mov r0, ip; bx lr
    EXPECT_EQ(FindingOf([&] { small.guest.CallBack(function); }).kind, FindingKind::Undefined);
}

TEST(CallBackTest, TheEntrysStackIsAlignedToFourBytesOnly)
{
    SmallGuest small;
    const Address entry = small.Put({0xE1A0000D, 0xE12FFF1E}); // mov r0, sp; bx lr
    EXPECT_EQ(small.guest.Enter(entry, 0, 0, 0, 0) % 8, 4u);
}

TEST(CallBackTest, AnAddressThatIsNoImportsIsFound)
{
    SmallGuest small;
    const Address behind = small.PutCallOf(small.guest.AddTrap("Last", {"Last", "u"}) + wordSize);
    EXPECT_EQ(FindingOf([&] { small.guest.CallBack(behind); }).address, TrapAddress(2));
    const Address function = small.PutCallOf(TrapAddress(500));
    EXPECT_EQ(FindingOf([&] { small.guest.CallBack(function); }).kind, FindingKind::Misuse);
}

} // namespace runner
