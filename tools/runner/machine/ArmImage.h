// The device's executable as its file holds it: a Windows executable for ARM, without relocations.
#pragma once

#include "tools/runner/machine/GuestMemory.h"

#include <span>

namespace runner {

class ArmImage
{
  public:
    struct Import
    {
        std::string library;
        std::string name; // empty: by number
        Word ordinal = 0;
        Address slot = 0; // where the guest finds the function's address

        // As the lists of imports write it: the name, or "@" and the number.
        std::string Label() const;
    };
    struct Section
    {
        std::string name;
        Address begin = 0;
        Word size = 0;
        Word fileOffset = 0;
        Word fileSize = 0;
        unsigned protection = NoAccess;
    };

  private:
    std::vector<std::uint8_t> file;
    Address base = 0;
    Word size = 0;
    Word headerSize = 0;
    Address entry = 0;
    Word stackReserve = 0;
    std::vector<Section> sections;
    std::vector<Import> imports;

  public:
    // Throws Refusal for what the device would not load, or what is damaged.
    explicit ArmImage(std::vector<std::uint8_t> content);

    Address Base() const { return base; }
    Word Size() const { return size; }
    Address Entry() const { return entry; }
    Word StackReserve() const { return stackReserve; }
    const std::vector<Section>& Sections() const { return sections; }
    const std::vector<Import>& Imports() const { return imports; }
    // The section that holds an address, or null.
    const Section* SectionAt(Address address) const;

    // Maps headers and sections. What the slots are to hold, who serves the imports writes there.
    void LoadInto(GuestMemory& memory) const;

  private:
    void ReadHeaders();
    void ReadSections(std::uint64_t table, Word count);
    void ReadImports(Word rva, Word length);
    void ReadLibrary(Word lookups, Word slots, const std::string& library);
    std::uint64_t OffsetOf(Word rva) const;
    Word WordAt(Word rva) const;
};

} // namespace runner
