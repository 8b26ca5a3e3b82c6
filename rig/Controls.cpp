// What list views and trees of any process hold, asked by their own messages.
#include "rig/Controls.h"

#include "rig/Desktop.h"
#include "rig/RemoteMemory.h"

namespace rig {

static constexpr int longestItemText = 1024;

namespace {

// The structure of a message and its text lie side by side in the tree's process.
struct ItemBlock
{
    TVITEMEXW item;
    wchar_t text[longestItemText];
};

} // namespace

static TreeItem ReadItem(HWND tree, const RemoteMemory& memory, HTREEITEM handle, int depth)
{
    static ItemBlock block;
    block = {};
    block.item.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
    block.item.hItem = handle;
    block.item.stateMask = TVIS_SELECTED | TVIS_EXPANDED;
    block.item.pszText = static_cast<ItemBlock*>(memory.Address())->text;
    block.item.cchTextMax = longestItemText;
    memory.Write(&block, sizeof(block));
    Send(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(memory.Address()));
    memory.Read(&block, sizeof(block));
    block.text[longestItemText - 1] = L'\0';
    return {handle,
            block.text,
            block.item.lParam,
            depth,
            (block.item.state & TVIS_SELECTED) != 0,
            (block.item.state & TVIS_EXPANDED) != 0};
}

static HTREEITEM NextItem(HWND tree, UINT relation, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(Send(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

// Adds an item, all below it, and its later siblings.
static void ReadBranch(HWND tree, const RemoteMemory& memory, HTREEITEM item, int depth,
                       std::vector<TreeItem>& items)
{
    for (; item; item = NextItem(tree, TVGN_NEXT, item)) {
        items.push_back(ReadItem(tree, memory, item, depth));
        ReadBranch(tree, memory, NextItem(tree, TVGN_CHILD, item), depth + 1, items);
    }
}

int ListCount(HWND list)
{
    return static_cast<int>(Send(list, LVM_GETITEMCOUNT));
}

int ListMark(HWND list)
{
    return static_cast<int>(Send(list, LVM_GETSELECTIONMARK));
}

int ListSelected(HWND list)
{
    return static_cast<int>(
        Send(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), MAKELPARAM(LVNI_SELECTED, 0)));
}

int ListTopRow(HWND list)
{
    return static_cast<int>(Send(list, LVM_GETTOPINDEX));
}

int ListRowsPerPage(HWND list)
{
    return static_cast<int>(Send(list, LVM_GETCOUNTPERPAGE));
}

std::optional<RECT> ListRowOnScreen(HWND list, int row)
{
    RECT rect = {};
    rect.left = LVIR_BOUNDS;
    const RemoteMemory memory(list, sizeof(rect));
    if (!memory.Write(&rect, sizeof(rect)) ||
        !Send(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory.Address())) ||
        !memory.Read(&rect, sizeof(rect))) {
        return std::nullopt;
    }
    MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

std::vector<TreeItem> TreeItems(HWND tree)
{
    std::vector<TreeItem> items;
    const RemoteMemory memory(tree, sizeof(ItemBlock));
    if (memory.Address()) {
        ReadBranch(tree, memory, NextItem(tree, TVGN_ROOT, nullptr), 0, items);
    }
    return items;
}

} // namespace rig
