// Asks every kind of check.
#include "tests/device/image/ImageFaults.h"

#include "tests/device/image/HeaderFaults.h"
#include "tests/device/image/ImportFaults.h"
#include "tests/device/image/ResourceFaults.h"
#include "tests/device/image/SectionFaults.h"

#include <exception>

// One unreadable part does not keep the others from being checked.
template <typename Check>
static void Try(const std::string& part, Complaints& complaints, Check check)
{
    try {
        check();
    } catch (const std::exception& problem) {
        complaints.Require(false, part + " cannot be read: " + problem.what());
    }
}

std::vector<std::string> FaultsOf(ByteView file, const ElfFile& linked, const ImportLists& lists)
{
    Complaints complaints;
    Try("the file", complaints, [&] {
        const ImageView image(file);
        Try("a header", complaints, [&] { FindHeaderFaults(image, linked, complaints); });
        Try("a section", complaints, [&] { FindSectionFaults(image, linked, complaints); });
        Try("the imports", complaints, [&] { FindImportFaults(image, lists, complaints); });
        Try("the resources", complaints, [&] { FindResourceFaults(image, complaints); });
    });
    return complaints.All();
}
