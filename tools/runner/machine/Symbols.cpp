// Reads the symbol table.
#include "tools/runner/machine/Symbols.h"

#include "tools/common/ByteView.h"
#include "tools/common/Refusal.h"

#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>

namespace runner {

static constexpr std::uint64_t sectionHeaderSize = 40;
static constexpr std::uint64_t symbolSize = 16;
static constexpr Word symbolTable = 2;
static constexpr unsigned functionType = 2;

static std::string NameAt(const ByteView& names, std::uint64_t offset)
{
    std::string name;
    while (const std::uint8_t character = names.U8(offset++)) {
        name += static_cast<char>(character);
    }
    return name;
}

static std::string Readable(const std::string& name)
{
    int status = 0;
    char* text = abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status);
    const std::string readable = text ? text : name;
    std::free(text);
    return readable;
}

Symbols::Symbols(std::span<const std::uint8_t> elf)
{
    const ByteView file(elf);
    if (file.U32Little(0) != 0x464C457F || file.U16Little(4) != 0x0101) {
        throw Refusal("is no ELF file of 32 bits");
    }
    const auto section = [&file](Word index) {
        return file.Part(file.U32Little(32) + sectionHeaderSize * index, sectionHeaderSize);
    };
    for (Word index = 0; index < file.U16Little(48); index++) {
        const ByteView row = section(index);
        if (row.U32Little(4) != symbolTable) {
            continue;
        }
        const ByteView namesRow = section(row.U32Little(24));
        const ByteView names = file.Part(namesRow.U32Little(16), namesRow.U32Little(20));
        const ByteView table = file.Part(row.U32Little(16), row.U32Little(20));
        for (std::uint64_t place = 0; place + symbolSize <= table.Size(); place += symbolSize) {
            if ((table.U8(place + 12) & 15) == functionType && table.U16Little(place + 14) != 0) {
                functions[table.U32Little(place + 4)] = {NameAt(names, table.U32Little(place)),
                                                         table.U32Little(place + 8)};
            }
        }
    }
    if (functions.empty()) {
        throw Refusal("has no functions in its symbol table");
    }
}

std::map<Address, Symbols::Function>::const_iterator Symbols::Holding(Address address) const
{
    auto found = functions.upper_bound(address);
    if (found == functions.begin()) {
        return functions.end();
    }
    --found;
    const Word size = found->second.size;
    return size == 0 || address - found->first < size ? found : functions.end();
}

std::string Symbols::FunctionOf(Address address) const
{
    const auto found = Holding(address);
    return found == functions.end() ? "" : Readable(found->second.name);
}

std::string Symbols::NameOf(Address address) const
{
    const auto found = Holding(address);
    if (found == functions.end()) {
        return "";
    }
    char offset[16];
    std::snprintf(offset, sizeof offset, "+0x%x", address - found->first);
    return Readable(found->second.name) + offset;
}

bool Symbols::IsInOperatorNew(Address address) const
{
    const auto found = Holding(address);
    return found != functions.end() &&
           (found->second.name.starts_with("_Znw") || found->second.name.starts_with("_Zna"));
}

Address Symbols::AddressOf(const std::string& name) const
{
    for (const auto& [address, function] : functions) {
        if (function.name == name) {
            return address;
        }
    }
    return 0;
}

} // namespace runner
