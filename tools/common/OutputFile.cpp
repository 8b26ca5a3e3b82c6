// Writes the output under a temporary name and gives it its own name when it is complete.
#include "tools/common/OutputFile.h"

#include "tools/common/Refusal.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

OutputFile::OutputFile(const std::string& outputPath) : path(outputPath)
{
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        throw Refusal::WithFile(path, "cannot be written: it exists and is not a regular file");
    }
    OpenTemporary();
}

OutputFile::~OutputFile()
{
    if (file != nullptr) {
        std::fclose(file);
    }
    if (!temporaryPath.empty()) {
        std::remove(temporaryPath.c_str());
    }
}

void OutputFile::OpenTemporary()
{
    // Several names, because an interrupted run may have left one and another run may be using one.
    static constexpr int attempts = 100;
    for (int i = 0; i < attempts; i++) {
        const std::string candidate = path + ".tmp" + std::to_string(i);
        file = std::fopen(candidate.c_str(), "wbx");
        if (file != nullptr) {
            temporaryPath = candidate;
            return;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    Fail(errno);
}

void OutputFile::Write(std::span<const std::uint8_t> bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
        Fail(errno);
    }
}

void OutputFile::Commit()
{
    // A full disk may show only when the buffer is written out.
    const int closed = std::fclose(file);
    file = nullptr;
    if (closed != 0) {
        Fail(errno);
    }
    if (std::rename(temporaryPath.c_str(), path.c_str()) != 0) {
        Fail(errno);
    }
    temporaryPath.clear();
}

void OutputFile::Fail(int code) const
{
    throw Refusal::WithFile(path, "cannot be written: " + std::generic_category().message(code));
}
