// Names of functions by the linker's table.
#include "tools/runner/machine/Symbols.h"

#include "tools/common/Refusal.h"

#include <gtest/gtest.h>
#include <vector>

namespace runner {

// A file with a symbol table as its first section and the names as its second.
class ElfBytes
{
    std::vector<std::uint8_t> bytes;
    std::vector<std::uint8_t> symbols;
    std::string names;

  public:
    ElfBytes() : symbols(16), names(1, '\0') {}

    void Add(const std::string& name, Address address, Word size, Word kind, Word section = 1)
    {
        const Word fields[] = {static_cast<Word>(names.size()), address, size, kind | section << 16};
        for (const Word field : fields) {
            Append(symbols, field);
        }
        names += name + '\0';
    }
    std::vector<std::uint8_t> Whole()
    {
        const auto symbolSize = static_cast<Word>(symbols.size());
        const auto nameSize = static_cast<Word>(names.size());
        constexpr Word headerSize = 52;
        bytes.clear();
        for (const Word field :
             {0x464C457Fu, 0x00010101u, 0u, 0u, 0u, 0u, 0u, 0u, headerSize, 0u, 0u, 0u, 2u}) {
            Append(bytes, field);
        }
        const Word place = headerSize + 2 * 40;
        AppendSection(2, place, symbolSize, 1);
        AppendSection(3, place + symbolSize, nameSize, 0);
        bytes.insert(bytes.end(), symbols.begin(), symbols.end());
        bytes.insert(bytes.end(), names.begin(), names.end());
        return bytes;
    }

  private:
    static void Append(std::vector<std::uint8_t>& to, Word value)
    {
        for (unsigned shift = 0; shift < 32; shift += 8) {
            to.push_back(static_cast<std::uint8_t>(value >> shift));
        }
    }
    void AppendSection(Word kind, Word offset, Word size, Word link)
    {
        for (const Word field : {0u, kind, 0u, 0u, offset, size, link, 0u, 4u, 16u}) {
            Append(bytes, field);
        }
    }
};
static constexpr Word function = 2;
static constexpr Word object = 1;

static Symbols Sample()
{
    ElfBytes file;
    file.Add("_ZN5CList7RefreshEv", 0x15100, 0x40, function);
    file.Add("ProgramEntry", 0x15000, 0, function);
    file.Add("_Znwj", 0x15200, 8, function);
    file.Add("_Znaj", 0x15208, 8, function);
    file.Add("table", 0x15120, 4, object);
    file.Add("elsewhere", 0x15130, 4, function, 0);
    return Symbols(file.Whole());
}

TEST(SymbolsTest, NameAndOffset)
{
    const Symbols symbols = Sample();
    EXPECT_EQ(symbols.NameOf(0x15100), "CList::Refresh()+0x0");
    EXPECT_EQ(symbols.NameOf(0x1513C), "CList::Refresh()+0x3c");
    EXPECT_EQ(symbols.FunctionOf(0x15124), "CList::Refresh()");
    // Without a size: as far as the next one.
    EXPECT_EQ(symbols.NameOf(0x150FC), "ProgramEntry+0xfc");
}

TEST(SymbolsTest, NothingIsNamedOutside)
{
    const Symbols symbols = Sample();
    EXPECT_EQ(symbols.NameOf(0x15140), "");
    EXPECT_EQ(symbols.NameOf(0x14FFC), "");
    EXPECT_EQ(symbols.FunctionOf(0), "");
    EXPECT_EQ(Symbols().NameOf(0x15100), "");
}

TEST(SymbolsTest, OperatorsThatAllocate)
{
    const Symbols symbols = Sample();
    EXPECT_TRUE(symbols.IsInOperatorNew(0x15204));
    EXPECT_TRUE(symbols.IsInOperatorNew(0x15208));
    EXPECT_FALSE(symbols.IsInOperatorNew(0x15210));
    EXPECT_FALSE(symbols.IsInOperatorNew(0x15100));
}

TEST(SymbolsTest, AddressOfAName)
{
    const Symbols symbols = Sample();
    EXPECT_EQ(symbols.AddressOf("_ZN5CList7RefreshEv"), 0x15100u);
    EXPECT_EQ(symbols.AddressOf("Refresh"), 0u);
}

TEST(SymbolsTest, OtherFilesAreRefused)
{
    std::vector<std::uint8_t> good = ElfBytes().Whole();
    EXPECT_THROW(Symbols{good}, Refusal); // it has no functions
    ElfBytes named;
    named.Add("name", 0x100, 4, function);
    good = named.Whole();
    EXPECT_NO_THROW(Symbols{good});
    std::vector<std::uint8_t> broken = good;
    broken[4] = 2; // of 64 bits
    EXPECT_THROW(Symbols{broken}, Refusal);
    for (std::size_t size = 0; size < good.size(); size++) {
        broken = good;
        broken.resize(size);
        EXPECT_THROW(Symbols{broken}, Refusal) << size;
    }
}

} // namespace runner
