// Taking the program's path off a command line.
#include "platform/pc/common/CommandLine.h"

namespace handheld {

static constexpr wchar_t gaps[] = L" \t";

static std::wstring_view WithoutProgram(std::wstring_view line)
{
    size_t end = 0;
    if (!line.empty() && line.front() == L'"') {
        end = line.find(L'"', 1);
        end = end == std::wstring_view::npos ? line.size() : end + 1;
    } else {
        end = line.find_first_of(gaps);
    }
    if (end == std::wstring_view::npos) {
        return {};
    }
    line.remove_prefix(end);
    const size_t tail = line.find_first_not_of(gaps);
    return tail == std::wstring_view::npos ? std::wstring_view() : line.substr(tail);
}

std::wstring CommandTail(std::wstring_view commandLine)
{
    std::wstring_view tail = WithoutProgram(commandLine);
    const size_t last = tail.find_last_not_of(gaps);
    const size_t length = last == std::wstring_view::npos ? 0 : last + 1;
    const bool quotedAsAWhole = length >= 2 && tail.front() == L'"' && tail.find(L'"', 1) == length - 1;
    if (quotedAsAWhole) {
        tail = tail.substr(1, length - 2);
    }
    return std::wstring(tail);
}

} // namespace handheld
