// The walk over the resources.
#include "tests/device/image/ResourceTree.h"

#include <stdexcept>

namespace {

struct Child
{
    std::uint32_t id;
    std::uint32_t place;
};

} // namespace

static constexpr std::uint32_t tableBit = 0x80000000;

static std::vector<Child> ReadTable(const ByteView& tree, std::uint32_t place, bool childrenAreTables)
{
    std::vector<Child> children;
    const std::uint32_t count = tree.U16(place + 12) + tree.U16(place + 14);
    for (std::uint32_t index = 0; index < count; index++) {
        const ByteView row = tree.Part(place + 16 + 8 * std::uint64_t{index}, 8);
        if (((row.U32(4) & tableBit) != 0) != childrenAreTables) {
            throw std::runtime_error("they do not have three levels");
        }
        children.push_back({row.U32(0), row.U32(4) & ~tableBit});
    }
    return children;
}

std::vector<ResourceItem> ReadResources(const ImageView& image)
{
    const ImageRange range = image.Directory(2);
    const ByteView tree = image.File().Part(image.OffsetOf(range.rva), range.size);
    std::vector<ResourceItem> items;
    for (const Child& type : ReadTable(tree, 0, true)) {
        for (const Child& item : ReadTable(tree, type.place, true)) {
            for (const Child& language : ReadTable(tree, item.place, false)) {
                const ByteView data = tree.Part(language.place, 16);
                items.push_back({type.id, item.id, {data.U32(0), data.U32(4)}});
            }
        }
    }
    return items;
}
