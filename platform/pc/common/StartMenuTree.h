// The Start menu's folder as a tree.
#pragma once

#include <string>
#include <vector>

namespace handheld {

struct StartMenuProgram
{
    std::wstring name;     // without the extension
    std::wstring shortcut; // its file
};

struct StartMenuTree
{
    std::wstring name;
    std::vector<StartMenuProgram> programs;
    std::vector<StartMenuTree> folders;

    bool IsEmpty() const { return programs.empty() && folders.empty(); }
};

// The shortcuts below a folder of the PC but those named "icon", which are the looks of folders. Both lists
// are sorted by name, letter case aside; folders without any shortcut are left out. Empty when there is no
// such folder.
StartMenuTree ReadStartMenu(const std::wstring& folder);

} // namespace handheld
