// The Start menu's folder as a tree.
#include "platform/pc/common/StartMenuTree.h"

#include "platform/pc/common/Shortcut.h"

#include <windows.h>

#include <algorithm>

namespace handheld {

// What lies deeper is left out: a folder may lead back to itself.
static constexpr int deepest = 8;

static constexpr size_t extensionLength = 4;

static bool IsSame(const std::wstring& one, const wchar_t* other)
{
    return lstrcmpiW(one.c_str(), other) == 0;
}

template <class Item>
static void SortByName(std::vector<Item>& items)
{
    std::sort(items.begin(), items.end(), [](const Item& one, const Item& other) {
        return lstrcmpiW(one.name.c_str(), other.name.c_str()) < 0;
    });
}

static void ReadFolder(const std::wstring& path, int depth, StartMenuTree& tree)
{
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        const std::wstring name = found.cFileName;
        const std::wstring file = path + L'\\' + name;
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            if (HasShortcutExtension(name) && !IsSame(name, L"icon.lnk")) {
                tree.programs.push_back({name.substr(0, name.size() - extensionLength), file});
            }
        } else if (depth < deepest && name != L"." && name != L"..") {
            StartMenuTree inner;
            inner.name = name;
            ReadFolder(file, depth + 1, inner);
            if (!inner.IsEmpty()) {
                tree.folders.push_back(std::move(inner));
            }
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
    SortByName(tree.programs);
    SortByName(tree.folders);
}

StartMenuTree ReadStartMenu(const std::wstring& folder)
{
    StartMenuTree tree;
    ReadFolder(folder, 0, tree);
    return tree;
}

} // namespace handheld
