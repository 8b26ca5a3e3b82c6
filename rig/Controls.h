// What list views and trees of any process hold, asked by their own messages.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

namespace rig {

// ---- list views ----
int ListCount(HWND list);
// The selection mark, -1 without one.
int ListMark(HWND list);
// The first selected row, -1 without one.
int ListSelected(HWND list);
int ListTopRow(HWND list);
int ListRowsPerPage(HWND list);
// The bounds of a row on the screen; nothing when there is no such row.
std::optional<RECT> ListRowOnScreen(HWND list, int row);

// ---- trees ----
struct TreeItem
{
    HTREEITEM handle;
    std::wstring text;
    LPARAM data;
    int depth; // 0 for a root
    bool selected;
    bool expanded;
};

// Every item, in the order of the tree, children after their parent.
std::vector<TreeItem> TreeItems(HWND tree);

} // namespace rig
