// Every promise of the import tables, broken.
#include "tests/device/image/ImportFixture.h"

class ImportTablesTest : public ImportFixture
{};

TEST_F(ImportTablesTest, AddressThatIsNotThatOfTheLookupTableIsFound)
{
    const ImportLibrary& library = Library("coredll.dll");
    image.Put32At(library.addressRva + 8, library.lookups.at(3));
    ExpectOnlyFault(image, "coredll.dll: the lookup table and the addresses differ");
}

TEST_F(ImportTablesTest, ShiftedAddressesAreFound)
{
    const ImportLibrary& library = Library("toolhelp.dll");
    image.Put32At(RowOf("toolhelp.dll") + 16, library.addressRva + 4);
    ExpectFault(image, "toolhelp.dll: the lookup table and the addresses differ");
}

TEST_F(ImportTablesTest, AddressesAtTheLookupTableAreFound)
{
    image.Put32At(RowOf("coredll.dll") + 16, Library("coredll.dll").lookupRva);
    ExpectFault(image, "coredll.dll: the addresses are outside .data");
}

TEST_F(ImportTablesTest, LookupTableAtTheAddressesIsFound)
{
    image.Put32At(RowOf("coredll.dll"), Library("coredll.dll").addressRva);
    ExpectOnlyFault(image, "coredll.dll: the lookup table is outside .text");
}

TEST_F(ImportTablesTest, LibraryWithoutFunctionsIsFound)
{
    PutImport("ole32.dll", 0, 0);
    ExpectFault(image, "ole32.dll: nothing is imported");
}

TEST_F(ImportTablesTest, TableThatIsNotAlignedIsFound)
{
    image.Put32At(RowOf("coredll.dll") + 16, Library("coredll.dll").addressRva + 2);
    ExpectFault(image, "coredll.dll: a table is not aligned to 4");
}

TEST_F(ImportTablesTest, LookupTableWithoutAnEndIsFound)
{
    const ImportLibrary& library = Library("aygshell.dll");
    const auto end = static_cast<std::uint32_t>(4 * library.lookups.size());
    image.Put32At(library.lookupRva + end, library.lookups.at(0));
    ExpectFault(image, "aygshell.dll: the lookup table and the addresses differ");
}

TEST_F(ImportTablesTest, TablesWithoutAnEndAreFound)
{
    const ImportLibrary& library = Library("aygshell.dll");
    PutImport("aygshell.dll", library.lookups.size(), library.lookups.at(0));
    ExpectFault(image, "ceshell.dll: its addresses do not begin where those before end");
}

TEST_F(ImportTablesTest, DirectoryWithoutItsTerminatorIsFound)
{
    image.Put32(PlaceOfDirectory(1) + 4, static_cast<std::uint32_t>(20 * libraries.size()));
    ExpectOnlyFault(image, "the import directory does not end with 20 zero bytes");
}

TEST_F(ImportTablesTest, LastRowThatIsNotZeroIsFound)
{
    const std::uint32_t last =
        image.View().Directory(1).rva + static_cast<std::uint32_t>(20 * libraries.size());
    for (std::uint32_t place = 0; place < 20; place += 4) {
        image.Put32At(last + place, image.View().U32At(RowOf("ole32.dll") + place));
    }
    ExpectFault(image, "the import directory does not end with 20 zero bytes");
}

TEST_F(ImportTablesTest, ZeroRowThatIsNotTheLastIsFound)
{
    for (std::uint32_t place = 0; place < 20; place += 4) {
        image.Put32At(RowOf("ole32.dll") + place, 0);
    }
    ExpectFault(image, "the import directory does not end with 20 zero bytes");
}

TEST_F(ImportTablesTest, BoundLibraryIsFound)
{
    image.Put32At(RowOf("ole32.dll") + 4, 1);
    ExpectOnlyFault(image, "ole32.dll: it is bound");
}

TEST_F(ImportTablesTest, DirectoryOfAddressesThatIsTooSmallIsFound)
{
    image.Put32(PlaceOfDirectory(12) + 4, image.View().Directory(12).size - 4);
    ExpectOnlyFault(image, "the end of the directory of import addresses is 0x");
}

TEST_F(ImportTablesTest, DirectoryOfAddressesThatIsTooLargeIsFound)
{
    image.Put32(PlaceOfDirectory(12) + 4, image.View().Directory(12).size + 4);
    ExpectOnlyFault(image, "the end of the directory of import addresses is 0x");
}

TEST_F(ImportTablesTest, DirectoryOfAddressesThatBeginsLateIsFound)
{
    const ImageRange directory = image.View().Directory(12);
    image.Put32(PlaceOfDirectory(12), directory.rva + 4);
    image.Put32(PlaceOfDirectory(12) + 4, directory.size - 4);
    ExpectOnlyFault(image, "aygshell.dll: its addresses do not begin where those before end");
}

TEST_F(ImportTablesTest, TableOutsideTheImageIsFound)
{
    image.Put32At(RowOf("ole32.dll"), 0x7FFFFFFC);
    ExpectOnlyFault(image, "the imports cannot be read: an address is in no section");
}
