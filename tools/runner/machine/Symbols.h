// The names of the guest's functions, by the symbol table of the ELF file that the executable was copied
// from.
#pragma once

#include "tools/runner/machine/Value.h"

#include <map>
#include <span>
#include <string>

namespace runner {

class Symbols
{
    struct Function
    {
        std::string name;
        Word size = 0; // 0: up to the next one
    };
    std::map<Address, Function> functions;

  public:
    // Without any names.
    Symbols() = default;
    // Throws Refusal for anything but an ELF file of 32 bits with symbols.
    explicit Symbols(std::span<const std::uint8_t> elf);

    // "CList::Refresh()+0x1c"; empty for what lies in no function.
    std::string NameOf(Address address) const;
    // The same without the offset.
    std::string FunctionOf(Address address) const;
    // Whether it is in the operator that passes a wish for memory on, of one object or of many.
    bool IsInOperatorNew(Address address) const;
    // Where a function of this name, as the linker knows it, begins; 0 when there is none.
    Address AddressOf(const std::string& name) const;

  private:
    std::map<Address, Function>::const_iterator Holding(Address address) const;
};

} // namespace runner
