// What is read of an executable, where it comes to lie, and which files are refused.
#include "tests/tools/machine/ImageFile.h"
#include "tests/tools/machine/SmallMachine.h"

#include "tools/common/Refusal.h"

namespace runner {

static std::string RefusalOf(const ImageFile& file)
{
    try {
        ArmImage image(file.Bytes());
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "accepted";
}

TEST(ArmImageTest, ImportsByNameAndNumber)
{
    const ArmImage image(ImageFile().Bytes());
    const std::vector<ArmImage::Import>& imports = image.Imports();
    ASSERT_EQ(imports.size(), 3u);
    EXPECT_EQ(imports[0].library, "aygshell.dll");
    EXPECT_EQ(imports[0].Label(), "GetDC");
    EXPECT_EQ(imports[0].slot, ImageFile::dataBegin);
    EXPECT_EQ(imports[1].library, "aygshell.dll");
    EXPECT_EQ(imports[1].Label(), "@84");
    EXPECT_EQ(imports[1].ordinal, 84u);
    EXPECT_EQ(imports[1].slot, ImageFile::dataBegin + 4);
    EXPECT_EQ(imports[2].library, "ole32.dll");
    EXPECT_EQ(imports[2].name, "CoCreate");
    EXPECT_EQ(imports[2].slot, ImageFile::dataBegin + 12);
}

TEST(ArmImageTest, HeadersAndSections)
{
    const ArmImage image(ImageFile().Bytes());
    EXPECT_EQ(image.Base(), ImageFile::base);
    EXPECT_EQ(image.Size(), 0x4000u);
    EXPECT_EQ(image.Entry(), ImageFile::entry);
    EXPECT_EQ(image.StackReserve(), 0x8000u);
    ASSERT_EQ(image.Sections().size(), 2u);
    EXPECT_EQ(image.Sections()[0].name, ".text");
    EXPECT_EQ(image.Sections()[0].protection, unsigned{CanRead | CanExecute});
    EXPECT_EQ(image.SectionAt(ImageFile::dataBegin + 0x17FF), &image.Sections()[1]);
    EXPECT_EQ(image.SectionAt(ImageFile::dataBegin + 0x1800), nullptr);
    EXPECT_EQ(image.SectionAt(ImageFile::base), nullptr);
}

// The machine runs it: sections with their protection, slots with their traps, the stack of the header.
TEST(ArmImageTest, IsLoadedAndRun)
{
    SmallMachine guest;
    Machine& machine = guest.machine;
    const ArmImage image(ImageFile().Bytes());
    machine.Load(image, 100);
    EXPECT_EQ(guest.WordAt(ImageFile::dataBegin), TrapAddress(100));
    EXPECT_EQ(guest.WordAt(ImageFile::dataBegin + 4), TrapAddress(101));
    EXPECT_EQ(guest.WordAt(ImageFile::dataBegin + 12), TrapAddress(102));
    EXPECT_EQ(guest.WordAt(ImageFile::dataBegin + 0xFFC), 0x12345678u);
    EXPECT_EQ(guest.WordAt(ImageFile::dataBegin + 0x1000), 0u);
    EXPECT_EQ(machine.memory.ProtectionAt(ImageFile::base), unsigned{CanRead});
    EXPECT_EQ(machine.memory.ProtectionAt(ImageFile::entry), unsigned{CanRead | CanExecute});
    EXPECT_EQ(machine.memory.ProtectionAt(ImageFile::dataBegin + 0x1000), unsigned{CanRead | CanWrite});
    EXPECT_EQ(machine.processor.Register(StackRegister), SmallMachine::stackTop);
    EXPECT_EQ(machine.memory.StackLow(), SmallMachine::stackTop - 0x8000);
    machine.processor.SetRegister(LinkRegister, TrapAddress(3));
    EXPECT_EQ(machine.processor.Run(image.Entry()), 3u);
    EXPECT_EQ(machine.processor.Register(0), 5u);
}

TEST(ArmImageTest, OtherFilesAreRefused)
{
    struct Row
    {
        std::size_t place;
        Word value; // of 32 bits
        std::string refusal;
    };
    constexpr std::size_t header = ImageFile::header;
    constexpr std::size_t text = ImageFile::firstSection;
    constexpr std::size_t data = text + 40;
    const Row rows[] = {
        {0, 0x00004D5A, "does not begin with MZ"},
        {header, 0x00004E50, "has no PE signature"},
        {0x3C, 0x2FFF, "is truncated"},
        {0x3C, 0xFFFFFFFF, "is truncated"},
        {header + 4, 0x0002014C, "is not for ARM"},
        {header + 24, 0x0000020B, "is not of 32 bits"},
        {header + 92, 2, "is not for Windows CE"},
        {header + 20, 0x210F00E0, "is a library"},
        {header + 52, 0, "has a base that is no page"},
        {header + 52, 0x10800, "has a base that is no page"},
        {header + 80, 0xFFFFF000, "is too large"},
        {header + 84, 0x5000, "has headers that are longer than the file"},
        {header + 96, 0x1234, "reserves a stack that no process gets"},
        {header + 96, 0x200000, "reserves a stack that no process gets"},
        {header + 4, 0x000001C0, "has no sections, or too many"},
        {header + 40, 0x2010, "has an entry point outside its code"},
        {header + 40, 0x8000, "has an entry point outside its code"},
        {text + 12, 0x1004, "has a section that does not begin with a page"},
        {text + 12, 0, "has sections that overlap"},
        {text + 8, 0x1001, "has sections that overlap"},
        {data + 12, 0xFFFFF000, "has a section outside the image"},
        {data + 8, 0x2001, "has a section outside the image"},
        {data + 20, 0x2001, "is truncated"},
        {header + 128, 0x8000, "has an import table outside its sections"},
        {header + 132, 40, "has an import directory without an end"},
        {ImageFile::importDirectory + 12, 0x3000, "has an import table outside its sections"},
        {ImageFile::importDirectory + 16, 0x2002, "has import addresses that are not aligned"},
        {ImageFile::importDirectory + 16, 0x1180, "has import addresses that cannot be written"},
        {ImageFile::slots + 4, 0x80000055, "has import tables that differ"},
        {0x1200, 0, "has an import without a name"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.place);
        ImageFile file;
        file.Put32(row.place, row.value);
        EXPECT_EQ(RefusalOf(file), row.refusal);
    }
    EXPECT_EQ(RefusalOf(ImageFile()), "accepted");
}

TEST(ArmImageTest, TruncatedFilesAreRefused)
{
    for (const std::size_t size : {0, 2, 0x3C, 0x80, 0x17F, 0x1000, 0x1FFF, 0x2FFF}) {
        ImageFile file;
        file.Resize(size);
        EXPECT_NE(RefusalOf(file), "accepted") << size;
    }
}

} // namespace runner
