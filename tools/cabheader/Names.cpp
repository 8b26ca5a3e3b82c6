// Which names and texts the two kinds of instructions and the device take.
#include "tools/cabheader/Names.h"

#include "tools/common/Refusal.h"

#include <algorithm>

static constexpr std::size_t longestFileName = 128;
static constexpr std::size_t longestCabinetName = 8;

static std::string Quoted(const std::string& text)
{
    return "'" + Printable(text) + "'";
}

static bool IsPrintableAscii(char c)
{
    return c >= ' ' && c <= '~';
}

void CheckText(const std::string& text, std::size_t longest)
{
    if (text.empty()) {
        throw Refusal("a text is empty");
    }
    if (text.size() > longest) {
        throw Refusal(Quoted(text) + " is longer than " + std::to_string(longest) + " characters");
    }
    if (!std::all_of(text.begin(), text.end(), IsPrintableAscii)) {
        throw Refusal(Quoted(text) + " has characters that are not ASCII");
    }
    if (text.front() == ' ' || text.back() == ' ') {
        throw Refusal(Quoted(text) + " begins or ends with a blank");
    }
}

void CheckFileName(const std::string& name)
{
    CheckText(name, longestFileName);
    // A percent sign could be read as the beginning of another %CEn%.
    if (name.find_first_of("\\/:*?\"<>|%") != std::string::npos || name.back() == '.') {
        throw Refusal(Quoted(name) + " cannot be a file name");
    }
}

void CheckCabinetName(const std::string& name)
{
    CheckText(name, longestCabinetName);
    const auto allowed = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'; };
    if (!std::all_of(name.begin(), name.end(), allowed)) {
        throw Refusal(Quoted(name) + " has characters other than A to Z, 0 to 9 and _");
    }
}

std::string LowerCase(const std::string& name)
{
    std::string result = name;
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return result;
}
