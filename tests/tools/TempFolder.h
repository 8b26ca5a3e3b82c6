// A folder for one test's files, removed with everything in it at the end of the test.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

class TempFolder
{
    std::filesystem::path folder;

  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string Path(const std::string& name) const { return (folder / name).string(); }
    // Returns the path of the new file.
    std::string Put(const std::string& name, const Bytes& content) const;
    // The names in the folder, sorted.
    std::vector<std::string> Names() const;
};

Bytes ReadAll(const std::string& path);
