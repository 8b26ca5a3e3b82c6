// Reads the lists of imports.
#include "tests/device/image/ImportLists.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

ImportLists::ImportLists(const std::string& folder)
{
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        const std::string library = file.path().stem().string();
        if (library == "evidence")
            continue; // says how sure the rows of the others are
        std::ifstream stream(file.path());
        for (std::string line; std::getline(stream, line);) {
            std::istringstream columns(line);
            std::string name;
            std::string kind;
            if (columns >> name >> kind && name[0] != '#' && name != "dll-on-pc")
                lists[library][name] = kind;
        }
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
