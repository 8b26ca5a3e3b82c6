// What the tests of imports break an image with.
#pragma once

#include "tests/device/image/ImportTables.h"
#include "tests/device/image/PatchedImage.h"

#include <gtest/gtest.h>

class ImportFixture : public testing::Test
{
  protected:
    PatchedImage image;
    // As they were built.
    const std::vector<ImportLibrary> libraries = ReadImportTables(image.View()).libraries;

    const ImportLibrary& Library(const std::string& name) const;
    // The address of a library's row in the directory, and of its name.
    std::uint32_t RowOf(const std::string& library) const;
    std::uint32_t NameOf(const std::string& library) const { return image.View().U32At(RowOf(library) + 12); }
    // The place in the file of a directory's address and size.
    std::uint64_t PlaceOfDirectory(std::size_t index) const;
    // Which of its library's imports a function is.
    std::size_t IndexOf(const std::string& library, const std::string& function) const;
    // The same value into both tables.
    void PutImport(const std::string& library, std::size_t index, std::uint32_t value);
    // In the place of the one function that is imported by number.
    void PutNumber(std::uint32_t value);
    // The other name may not be longer.
    void Rename(const std::string& library, const std::string& function, const std::string& other);
};
