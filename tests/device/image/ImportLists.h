// The lists of what the program may import of each library. The header of coredll.txt explains their columns.
#pragma once

#include <cstdint>
#include <map>
#include <string>

class ImportLists
{
    // Of a library without ".dll": name of the function, and its second column.
    std::map<std::string, std::map<std::string, std::string>> lists;

  public:
    explicit ImportLists(const std::string& folder);

    bool HasList(const std::string& library) const { return lists.contains(library); }
    // How a function has to be imported: "-" by name, a number, or "pc" or "late" for not at all. Empty when
    // it is not in the list.
    std::string KindOf(const std::string& library, const std::string& function) const;
    bool HasNumber(const std::string& library, std::uint32_t number) const;
};
