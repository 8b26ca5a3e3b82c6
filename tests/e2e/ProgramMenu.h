// The menus in the program's file: the items of an open menu cannot be asked for from another process.
#pragma once

#include <windows.h>

#include <iosfwd>
#include <string>
#include <vector>

struct MenuItem
{
    int command; // 0 of a separator, -1 of a submenu
    std::wstring text;
    bool operator==(const MenuItem&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const MenuItem& item);

// A menu resource behind a right soft key.
class ProgramMenu
{
    HMODULE file;
    HMENU menu;

  public:
    explicit ProgramMenu(int id);
    ~ProgramMenu();
    ProgramMenu(const ProgramMenu&) = delete;
    ProgramMenu& operator=(const ProgramMenu&) = delete;

    // Empty when there is no such menu.
    std::vector<MenuItem> Items() const;
    // Of the submenu at a place, separators counted.
    std::vector<MenuItem> Items(int place) const;
};
