// Reads an input file whole.
#include "tools/common/InputFile.h"

#include "tools/common/Refusal.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

static constexpr std::uintmax_t largestInput = std::uintmax_t{16} << 20;

std::vector<std::uint8_t> ReadInputFile(const std::string& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (error || !std::filesystem::exists(status)) {
        throw Refusal::WithFile(path, "cannot be opened: " + error.message());
    }
    if (!std::filesystem::is_regular_file(status)) {
        throw Refusal::WithFile(path, "is not a regular file");
    }
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) {
        throw Refusal::WithFile(path, "cannot be read: " + error.message());
    }
    if (size > largestInput) {
        throw Refusal::WithFile(path, "is larger than 16 MiB");
    }

    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file) {
        throw Refusal::WithFile(path, "cannot be opened: " + std::generic_category().message(errno));
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
        throw Refusal::WithFile(path, "cannot be read whole");
    }
    return bytes;
}
