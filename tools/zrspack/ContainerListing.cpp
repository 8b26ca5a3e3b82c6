// Describes a picture container as text.
#include "tools/zrspack/ContainerListing.h"

#include "tools/common/Refusal.h"
#include "tools/zrspack/ContainerFormat.h"
#include "tools/zrspack/PictureCheck.h"

#include <cstdio>

static std::string DescribePicture(ByteView bytes)
{
    try {
        const PictureInfo info = CheckPicture(bytes);
        return std::string(info.format) + " " + std::to_string(info.width) + " x " +
               std::to_string(info.height);
    } catch (const Refusal& refusal) {
        return std::string("not a usable picture: ") + refusal.what();
    }
}

static std::string DescribeEntry(ByteView file, std::uint64_t record)
{
    const std::uint32_t id = file.U32Little(record);
    const std::uint32_t offset = file.U32Little(record + 4);
    const std::uint32_t size = file.U32Little(record + 8);
    if (!file.Has(offset, size)) {
        throw Refusal("is not a picture container: entry " + std::to_string(id) + " lies outside the file");
    }
    char columns[64];
    std::snprintf(columns, sizeof columns, "%10u %10u %10u  ", id, offset, size);
    return columns + DescribePicture(file.Part(offset, size)) + "\n";
}

std::string ListContainer(ByteView file)
{
    if (!file.StartsWith(container_format::magic) || !file.Has(0, container_format::directoryOffset)) {
        throw Refusal("is not a picture container: wrong or incomplete header");
    }
    const std::uint32_t version = file.U32Little(container_format::versionOffset);
    if (version != container_format::version) {
        throw Refusal("is a picture container of the unknown version " + std::to_string(version));
    }
    const std::uint32_t count = file.U32Little(container_format::countOffset);
    if (!file.Has(container_format::directoryOffset, container_format::recordSize * count)) {
        throw Refusal("is not a picture container: the directory is longer than the file");
    }

    std::string text = "version " + std::to_string(version) + ", header words";
    for (std::uint32_t i = 0; i < container_format::headerWords; i++) {
        text += " " + std::to_string(file.U32Little(container_format::wordsOffset + 4 * std::uint64_t{i}));
    }
    text += ", entries " + std::to_string(count) + "\n";
    text += "        id     offset       size  picture\n";
    for (std::uint32_t i = 0; i < count; i++) {
        text += DescribeEntry(file, container_format::directoryOffset + container_format::recordSize * i);
    }
    return text;
}
