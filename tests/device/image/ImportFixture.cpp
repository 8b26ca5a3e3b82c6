// Finds and changes imports.
#include "tests/device/image/ImportFixture.h"

#include <algorithm>
#include <stdexcept>

const ImportLibrary& ImportFixture::Library(const std::string& name) const
{
    for (const ImportLibrary& library : libraries) {
        if (library.name == name) {
            return library;
        }
    }
    throw std::runtime_error("nothing is imported of " + name);
}

std::uint32_t ImportFixture::RowOf(const std::string& library) const
{
    const auto index = static_cast<std::uint32_t>(&Library(library) - libraries.data());
    return image.View().Directory(1).rva + 20 * index;
}

std::uint64_t ImportFixture::PlaceOfDirectory(std::size_t index) const
{
    return image.View().OffsetOf(Field::Directories) + 8 * index;
}

std::size_t ImportFixture::IndexOf(const std::string& library, const std::string& function) const
{
    const std::vector<std::uint32_t>& lookups = Library(library).lookups;
    for (std::size_t index = 0; index < lookups.size(); index++) {
        if (lookups[index] < 0x80000000 && image.View().TextAt(lookups[index] + 2) == function) {
            return index;
        }
    }
    throw std::runtime_error(function + " is not imported");
}

void ImportFixture::PutImport(const std::string& library, std::size_t index, std::uint32_t value)
{
    const auto place = static_cast<std::uint32_t>(4 * index);
    image.Put32At(Library(library).lookupRva + place, value);
    image.Put32At(Library(library).addressRva + place, value);
}

void ImportFixture::PutNumber(std::uint32_t value)
{
    const std::vector<std::uint32_t>& lookups = Library("aygshell.dll").lookups;
    const auto found = std::ranges::find(lookups, 0x80000009);
    ASSERT_NE(found, lookups.end());
    PutImport("aygshell.dll", static_cast<std::size_t>(found - lookups.begin()), value);
}

void ImportFixture::Rename(const std::string& library, const std::string& function, const std::string& other)
{
    ASSERT_LE(other.size(), function.size());
    image.PutTextAt(Library(library).lookups.at(IndexOf(library, function)) + 2, other);
}
