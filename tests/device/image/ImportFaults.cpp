// The promises of the import tables.
#include "tests/device/image/ImportFaults.h"

#include "tests/device/image/ImportTables.h"

#include <algorithm>

namespace {

// The functions of one library.
class LibraryCheck
{
    const ImageView& image;
    const ImportLists& lists;
    const ImportLibrary& library;
    Complaints& complaints;
    std::string stem; // without ".dll"

  public:
    LibraryCheck(const ImageView& imageView, const ImportLists& importLists,
                 const ImportLibrary& importLibrary, Complaints& found)
        : image(imageView), lists(importLists), library(importLibrary), complaints(found)
    {}

    void Run()
    {
        CheckTables();
        Require(library.name.ends_with(".dll"), "the name does not end in .dll");
        stem = library.name.substr(0, library.name.rfind(".dll"));
        Require(lists.HasList(stem), "there is no list of its functions");
        for (const std::uint32_t lookup : library.lookups) {
            CheckFunction(lookup);
        }
    }

  private:
    void Require(bool good, const std::string& complaint)
    {
        complaints.Require(good, library.name + ": " + complaint);
    }

    void CheckTables()
    {
        Require(!library.bound, "it is bound");
        Require(!library.lookups.empty(), "nothing is imported");
        Require(image.Section(".text").memory.Holds(library.lookupRva), "the lookup table is outside .text");
        Require(image.Section(".data").memory.Holds(library.addressRva), "the addresses are outside .data");
        Require(library.lookupRva % 4 == 0 && library.addressRva % 4 == 0, "a table is not aligned to 4");
        Require(library.lookups == library.addresses, "the lookup table and the addresses differ");
    }

    void CheckFunction(std::uint32_t lookup)
    {
        const bool isNumber = (lookup & 0x80000000) != 0;
        if (!isNumber) {
            CheckName(lookup);
            return;
        }
        const std::uint32_t number = lookup & 0x7FFFFFFF;
        Require(number <= 0xFFFF, "a number has bits that none has");
        if (lists.HasList(stem)) {
            Require(lists.HasNumber(stem, number), "number " + std::to_string(number) + " is not listed");
        }
    }

    void CheckName(std::uint32_t place)
    {
        if (!image.Section(".text").memory.Holds(ImageRange{place, 4})) {
            Require(false, "an import is neither a number nor the place of a name");
            return;
        }
        Require(place % 2 == 0, "a name is at an odd address");
        const std::string name = image.TextAt(place + 2); // behind the hint
        const std::string kind = lists.HasList(stem) ? lists.KindOf(stem, name) : "-";
        Require(!kind.empty(), name + " is not listed");
        Require(kind.empty() || kind == "-", name + " is imported by name, but listed as " + kind);
    }
};

} // namespace

// The directory of addresses has every table with the zero behind it, and nothing else.
static void FindAddressFaults(const ImageView& image, std::vector<ImportLibrary> libraries,
                              Complaints& complaints)
{
    std::ranges::sort(libraries, {}, &ImportLibrary::addressRva);
    const ImageRange directory = image.Directory(12);
    std::uint64_t end = directory.rva;
    for (const ImportLibrary& library : libraries) {
        complaints.Require(library.addressRva == end,
                           library.name + ": its addresses do not begin where those before end");
        end = std::uint64_t{library.addressRva} + 4 * (library.addresses.size() + 1);
    }
    complaints.RequireEqual("the end of the directory of import addresses", directory.End(), end);
}

void FindImportFaults(const ImageView& image, const ImportLists& lists, Complaints& complaints)
{
    const ImportTables tables = ReadImportTables(image);
    complaints.Require(tables.terminated, "the import directory does not end with 20 zero bytes");
    for (const ImportLibrary& library : tables.libraries) {
        LibraryCheck(image, lists, library, complaints).Run();
    }
    FindAddressFaults(image, tables.libraries, complaints);
}
