// The small guest of the tests.
#include "tests/tools/calls/SmallGuest.h"

namespace runner {

static constexpr Layout places = {0x00100000, SmallGuest::stackTop, 0x00080000, 0x00040000, 0x000E0000};
static constexpr Word stackReserve = 0x4000;

SmallGuest::SmallGuest() : guest(sink, places)
{
    Memory().Map(code, GuestMemory::pageSize, CanRead | CanExecute);
    Memory().Map(data, GuestMemory::pageSize, CanRead | CanWrite, Content::Undefined);
    Memory().SetStack(stackTop, stackReserve);
    guest.machine.processor.SetRegister(StackRegister, stackTop - 0x100);
    guest.machine.processor.SetRegister(LinkRegister, TrapAddress(0));
}

Address SmallGuest::Put(const std::vector<Word>& words, Word offset)
{
    std::memcpy(Memory().Host(code + offset), words.data(), words.size() * sizeof(Word));
    return code + offset;
}

Address SmallGuest::PutCallOf(Address trap, Word offset)
{
    return Put({0xE52DE004, // push {lr}
                0xE59FC008, // ldr ip, [pc, #8]
                0xE1A0E00F, // mov lr, pc
                0xE12FFF1C, // bx ip
                0xE49DF004, // pop {pc}
                trap},
               offset);
}

Address SmallGuest::PutText(const std::u16string& text, Word offset)
{
    const auto size = static_cast<Word>((text.size() + 1) * sizeof(char16_t));
    std::memcpy(Memory().Checked(data + offset, 2, size, Access::Write), text.c_str(), size);
    return data + offset;
}

} // namespace runner
