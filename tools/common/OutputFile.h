// Writes the output under a temporary name and gives it its own name when it is complete.
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

// Until Commit has succeeded a file of the output's name stays as it was; the destructor removes what is
// unfinished.
class OutputFile
{
    std::string path;
    std::string temporaryPath; // empty once there is nothing to remove
    std::FILE* file = nullptr;

  public:
    // Refuses a path that exists and is no regular file: the rename would replace a device or a folder.
    explicit OutputFile(const std::string& outputPath);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(std::span<const std::uint8_t> bytes);
    void Commit();

  private:
    void OpenTemporary();
    [[noreturn]] void Fail(int code) const;
};
