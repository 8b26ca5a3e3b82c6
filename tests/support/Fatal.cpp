// Expects a statement to end in the fatal box.
#include "tests/support/Fatal.h"

#include <windows.h>

#include <cstdlib>

static std::string Utf8(const wchar_t* text)
{
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
    bytes.pop_back();
    return bytes;
}

FatalReport::FatalReport(const wchar_t* function, int expectedLine, const wchar_t* reason)
    : head("Fatal error\nAssertion failed in function: " + Utf8(function) + "()\nLine: "),
      tail("\n\nReason: " + Utf8(reason) + "\n"), line(expectedLine)
{}

bool FatalReport::MatchAndExplain(const std::string& output, std::ostream* listener) const
{
    std::string text;
    for (const char c : output) {
        if (c != '\r') {
            text += c;
        }
    }
    const size_t start = text.find(head);
    if (start == std::string::npos || text.find("Fatal error", start + 1) != std::string::npos) {
        if (listener) {
            *listener << "there is not exactly one box that begins so";
        }
        return false;
    }
    const char* const number = text.c_str() + start + head.size();
    char* end = nullptr;
    const long shown = strtol(number, &end, 10);
    const bool lineMatches = end != number && shown > 0 && (!line || shown == line);
    return lineMatches && std::string(end) == tail;
}

void FatalReport::DescribeTo(std::ostream* out) const
{
    *out << "is the box \"" << head << (line ? std::to_string(line) : "<line>") << tail << '"';
}

void FatalReport::DescribeNegationTo(std::ostream* out) const
{
    *out << "is another box than \"" << head << tail << '"';
}
