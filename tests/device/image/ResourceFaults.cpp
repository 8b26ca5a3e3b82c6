// The promises of the resources.
#include "tests/device/image/ResourceFaults.h"

#include "tests/device/image/ResourceTree.h"

#include <algorithm>

namespace {

struct ExpectedType
{
    std::uint32_t number;
    std::string name;
    std::vector<std::uint32_t> ids;
};

} // namespace

// The menus are of the four pages and the Windows list; the dialogs Information and the Windows list.
static const ExpectedType expectedTypes[] = {
    {4, "menu", {102, 132, 134, 136, 173}},
    {5, "dialog", {125, 133}},
    {6, "block of strings", {1, 7}},
    {9, "accelerators", {2}},
    {10, "soft-key bar", {111, 170, 171, 172, 173, 174}},
    {14, "icon", {101}},
    {16, "version", {1}},
};

void FindResourceFaults(const ImageView& image, Complaints& complaints)
{
    const std::vector<ResourceItem> items = ReadResources(image);
    for (const ExpectedType& type : expectedTypes) {
        for (const std::uint32_t id : type.ids) {
            const auto isIt = [&](const auto& item) { return item.type == type.number && item.id == id; };
            complaints.Require(std::ranges::any_of(items, isIt),
                               "there is no " + type.name + " " + std::to_string(id));
        }
    }
    const ImageRange section = image.Section(".rsrc").memory;
    for (const ResourceItem& item : items) {
        const std::string name = "resource " + std::to_string(item.type) + "-" + std::to_string(item.id);
        complaints.Require(section.Holds(item.data), name + " is outside .rsrc");
        complaints.Require(item.data.rva % 4 == 0, name + " is not aligned to 4");
        complaints.Require(item.data.size != 0, name + " is empty");
    }
}
