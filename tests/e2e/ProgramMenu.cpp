// The menus in the program's file.
#include "tests/e2e/ProgramMenu.h"

#include "rig/ChildProcess.h"

#include <gtest/gtest.h>

static std::vector<MenuItem> ItemsOf(HMENU menu)
{
    std::vector<MenuItem> items;
    for (int i = 0; i < GetMenuItemCount(menu); i++) {
        wchar_t text[100] = {};
        GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
        items.push_back({static_cast<int>(GetMenuItemID(menu, i)), text});
    }
    return items;
}

std::ostream& operator<<(std::ostream& stream, const MenuItem& item)
{
    return stream << item.command << " " << testing::PrintToString(item.text);
}

ProgramMenu::ProgramMenu(int id)
    : file(LoadLibraryExW((rig::ProgramFolder() + L"\\Quorvane.exe").c_str(), nullptr,
                          LOAD_LIBRARY_AS_DATAFILE)),
      menu(LoadMenuW(file, MAKEINTRESOURCEW(id)))
{}

ProgramMenu::~ProgramMenu()
{
    DestroyMenu(menu);
    FreeLibrary(file);
}

std::vector<MenuItem> ProgramMenu::Items() const
{
    return ItemsOf(GetSubMenu(menu, 0));
}

std::vector<MenuItem> ProgramMenu::Items(int place) const
{
    return ItemsOf(GetSubMenu(GetSubMenu(menu, 0), place));
}
