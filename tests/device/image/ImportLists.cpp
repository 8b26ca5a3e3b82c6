// Reads the lists of imports.
#include "tests/device/image/ImportLists.h"

#include <algorithm>
#include <fstream>
#include <sstream>

// The first two columns of a list's rows.
static std::map<std::string, std::string> ReadRows(const std::string& file)
{
    std::map<std::string, std::string> rows;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        std::istringstream columns(line);
        std::string name;
        std::string kind;
        if (columns >> name >> kind && name[0] != '#') {
            rows[name] = kind;
        }
    }
    return rows;
}

ImportLists::ImportLists(const std::string& folder)
{
    for (const auto& library : ReadRows(folder + "/libraries.txt")) {
        lists[library.first] = ReadRows(folder + "/" + library.first + ".txt");
    }
}

std::string ImportLists::KindOf(const std::string& library, const std::string& function) const
{
    const auto& list = lists.at(library);
    const auto row = list.find(function);
    return row == list.end() ? "" : row->second;
}

bool ImportLists::HasNumber(const std::string& library, std::uint32_t number) const
{
    return std::ranges::any_of(lists.at(library),
                               [number](const auto& row) { return row.second == std::to_string(number); });
}
