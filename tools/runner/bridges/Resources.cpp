// Resources of the image: the host reads them out of the same file.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

// The host's handle is the entry's place in its view of the file; the guest gets the place in its own memory.
static Word DoFindResource(Call& call)
{
    const HRSRC found =
        FindResourceW(ModuleArgument(call, 0), Wide(call.TextOrNumber(1)), Wide(call.TextOrNumber(2)));
    if (!found) {
        return 0;
    }
    // The lowest two bits say how the file was loaded.
    const auto file = call.guest.hostResources & ~std::uint64_t{3};
    return static_cast<Word>(reinterpret_cast<ULONG_PTR>(found) - file) + call.guest.image;
}

// The entry begins with the data's place in the image.
static Word DoLoadResource(Call& call)
{
    const auto* entry = static_cast<const Word*>(call.In(call.Argument(1), sizeof(Word)));
    return entry ? *entry + call.guest.image : 0;
}

static constexpr Bridge resourceRows[] = {
    {"FindResourceW", DoFindResource}, {"LoadAcceleratorsW", "g ms"}, {"LoadIconW", "h ms"},
    {"LoadResource", DoLoadResource},  {"LoadStringW", "u muTi"},
};

Bridges ResourceBridges()
{
    return resourceRows;
}

} // namespace runner
