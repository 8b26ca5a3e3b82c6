// A place on the device, below one of its standard folders.
#include "tools/cabheader/DevicePath.h"

#include "tools/cabheader/Names.h"
#include "tools/common/Refusal.h"

#include <charconv>

// A path on the device has less than 260 characters; this leaves room for what %CEn% stands for.
static constexpr std::size_t longestPath = 200;

static unsigned ParseBase(const std::string& text)
{
    static const std::string start = "%CE";
    unsigned base = 0;
    if (text.size() > start.size() + 1 && text.starts_with(start) && text.back() == '%') {
        const char* end = text.data() + text.size() - 1;
        const auto [stop, error] = std::from_chars(text.data() + start.size(), end, base);
        if (error != std::errc() || stop != end || text[start.size()] == '0') {
            base = 0;
        }
    }
    if (base == 0 || base > DevicePath::highestBase) {
        throw Refusal("'" + Printable(text) + "' is not one of %CE1% to %CE17%");
    }
    return base;
}

DevicePath DevicePath::Parse(const std::string& text)
{
    DevicePath result;
    std::size_t end = text.find('\\');
    result.base = ParseBase(text.substr(0, end));
    while (end != std::string::npos) {
        const std::size_t begin = end + 1;
        end = text.find('\\', begin);
        result = result.Child(text.substr(begin, end == std::string::npos ? end : end - begin));
    }
    return result;
}

std::string DevicePath::BaseText() const
{
    return "%CE" + std::to_string(base) + "%";
}

std::string DevicePath::Text() const
{
    std::string text = BaseText();
    for (const std::string& part : parts) {
        text += "\\" + part;
    }
    return text;
}

DevicePath DevicePath::Parent() const
{
    DevicePath result = *this;
    result.parts.pop_back();
    return result;
}

DevicePath DevicePath::Child(const std::string& name) const
{
    CheckFileName(name);
    DevicePath result = *this;
    result.parts.push_back(name);
    if (result.Text().size() > longestPath) {
        throw Refusal("'" + result.Text() + "' is longer than " + std::to_string(longestPath) +
                      " characters");
    }
    return result;
}
