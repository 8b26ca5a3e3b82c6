// Builds the bytes of a picture container: header, directory, data.
#include "tools/zrspack/ContainerWriter.h"

#include "tools/common/Refusal.h"
#include "tools/zrspack/ContainerFormat.h"

#include <string>
#include <utility>

static void AppendU32(std::vector<std::uint8_t>& bytes, std::uint64_t value)
{
    if (value > UINT32_MAX) {
        throw Refusal("the container would be larger than 4 GiB");
    }
    for (int shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
    }
}

void ContainerWriter::Add(std::uint32_t id, std::vector<std::uint8_t> bytes)
{
    if (!entries.emplace(id, std::move(bytes)).second) {
        throw Refusal("id " + std::to_string(id) + " is given twice");
    }
}

std::vector<std::uint8_t> ContainerWriter::Build() const
{
    std::vector<std::uint8_t> result(container_format::magic.begin(), container_format::magic.end());
    AppendU32(result, container_format::version);
    for (std::uint32_t i = 0; i < container_format::headerWords; i++) {
        AppendU32(result, 0);
    }
    AppendU32(result, entries.size());

    std::uint64_t offset = container_format::directoryOffset + container_format::recordSize * entries.size();
    for (const auto& [id, bytes] : entries) {
        AppendU32(result, id);
        AppendU32(result, offset);
        AppendU32(result, bytes.size());
        AppendU32(result, 0);
        AppendU32(result, 0);
        offset += bytes.size();
    }
    for (const auto& [id, bytes] : entries) {
        result.insert(result.end(), bytes.begin(), bytes.end());
    }
    return result;
}
