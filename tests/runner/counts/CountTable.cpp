// The table of the figures as a text, and what has grown since it was written.
#include "tests/runner/counts/CountTable.h"

#include <algorithm>
#include <sstream>

namespace counts {

static constexpr std::uint64_t percentAllowed = 5;

std::string TableHead()
{
    return "| part | instructions | calls |\n|---|---|---|";
}

// 1234567 as 1,234,567.
static std::string Grouped(std::uint64_t number)
{
    std::string text = std::to_string(number);
    for (size_t place = text.size(); place > 3;) {
        place -= 3;
        text.insert(place, 1, ',');
    }
    return text;
}

static std::uint64_t Ungrouped(std::string text)
{
    std::erase_if(text, [](char c) { return c < '0' || c > '9'; });
    return text.empty() ? 0 : std::stoull(text);
}

std::string TableLine(const Figure& figure)
{
    return "| " + figure.name + " | " + Grouped(figure.instructions) + " | " + Grouped(figure.imports) + " |";
}

std::vector<Figure> ReadTable(const std::string& text)
{
    std::vector<Figure> figures;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream cells(line);
        std::string before;
        std::string name;
        std::string instructions;
        std::string imports;
        std::getline(cells, before, '|');
        std::getline(cells, name, '|');
        std::getline(cells, instructions, '|');
        std::getline(cells, imports, '|');
        if (name.size() > 2 && Ungrouped(instructions) != 0) {
            figures.push_back(
                {name.substr(1, name.size() - 2), Ungrouped(instructions), Ungrouped(imports), {}});
        }
    }
    return figures;
}

static bool IsOver(std::uint64_t measured, std::uint64_t written)
{
    return measured * 100 > written * (100 + percentAllowed);
}

static std::string Compared(const char* what, std::uint64_t measured, std::uint64_t written)
{
    std::string text = Grouped(measured) + " " + what + " instead of " + Grouped(written);
    if (written != 0 && measured > written) {
        text += " (" + std::to_string((measured - written) * 100 / written) + " percent more)";
    }
    return text;
}

static const Figure* Find(const std::vector<Figure>& figures, const std::string& name)
{
    const auto found = std::ranges::find(figures, name, &Figure::name);
    return found == figures.end() ? nullptr : &*found;
}

static std::string InWords(const Figure& now, const Figure& then)
{
    std::string text = now.name + ": " + Compared("instructions", now.instructions, then.instructions) +
                       ", " + Compared("calls", now.imports, then.imports);
    for (const std::string& function : now.functions) {
        text += "\n    " + function;
    }
    return text;
}

std::vector<std::string> Growth(const std::vector<Figure>& table, const std::vector<Figure>& measured)
{
    std::vector<std::string> growth;
    for (const Figure& now : measured) {
        const Figure* const then = Find(table, now.name);
        if (!then) {
            growth.push_back(now.name + ": is not in the table");
        } else if (IsOver(now.instructions, then->instructions) || IsOver(now.imports, then->imports)) {
            growth.push_back(InWords(now, *then));
        }
    }
    for (const Figure& then : table) {
        if (!Find(measured, then.name)) {
            growth.push_back(then.name + ": was not measured");
        }
    }
    return growth;
}

} // namespace counts
