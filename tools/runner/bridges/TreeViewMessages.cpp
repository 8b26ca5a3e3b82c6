// Messages to tree views. Their items are pointers on the host.
#include "tools/runner/bridges/ToHost.h"

namespace runner {

namespace {

struct TreeItem
{
    Word mask;
    Word item;
    Word state;
    Word stateMask;
    Word text;
    LONG textSize;
    LONG image;
    LONG selectedImage;
    LONG children;
    Word data;
};
static_assert(sizeof(TreeItem) == 40);

struct TreeInsertion
{
    Word parent;
    Word after;
    TreeItem item;
};
static_assert(sizeof(TreeInsertion) == 48);

} // namespace

static constexpr Word treeItemMask =
    TVIF_TEXT | TVIF_IMAGE | TVIF_PARAM | TVIF_STATE | TVIF_HANDLE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;

static HTREEITEM ItemOf(const Outgoing& out, Word cookie)
{
    return reinterpret_cast<HTREEITEM>(
        static_cast<ULONG_PTR>(out.call.ObjectOf(cookie, CookieKind::TreeItem)));
}

static Word CookieFor(const Outgoing& out, LRESULT item)
{
    return out.call.Cookie(CookieKind::TreeItem, static_cast<std::uint64_t>(item));
}

static UINT MaskOf(const Outgoing& out, Word mask)
{
    if ((mask & ~treeItemMask) != 0) {
        out.call.guest.Misuse("a mask of a tree's item that the device does not have", mask);
    }
    return mask;
}

static Word Insert(const Outgoing& out)
{
    const auto place = out.RecordAtLParam<TreeInsertion>();
    const Record<TreeItem> record(out.call.guest.machine.memory, place.At(&TreeInsertion::item));
    TVINSERTSTRUCTW insertion = {};
    insertion.hParent = ItemOf(out, place.Get(&TreeInsertion::parent));
    insertion.hInsertAfter = ItemOf(out, place.Get(&TreeInsertion::after));
    TVITEMW& item = insertion.item;
    item.mask = MaskOf(out, record.Get(&TreeItem::mask));
    if ((item.mask & TVIF_TEXT) != 0) {
        item.pszText = const_cast<wchar_t*>(Wide(out.call.TextAt(record.Get(&TreeItem::text))));
    }
    if ((item.mask & TVIF_PARAM) != 0) {
        item.lParam = static_cast<LONG>(record.Get(&TreeItem::data));
    }
    if ((item.mask & TVIF_STATE) != 0) {
        item.state = record.Get(&TreeItem::state);
        item.stateMask = record.Get(&TreeItem::stateMask);
    }
    if ((item.mask & (TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN)) != 0) {
        out.call.guest.Misuse("members of a tree's item that are not carried across", item.mask);
    }
    return CookieFor(out, out.DeliverWith(0, reinterpret_cast<LPARAM>(&insertion)));
}

static Word GetItem(const Outgoing& out)
{
    const auto record = out.RecordAtLParam<TreeItem>();
    TVITEMW item = {};
    item.mask = MaskOf(out, record.Get(&TreeItem::mask));
    if ((item.mask & ~(TVIF_TEXT | TVIF_PARAM | TVIF_STATE | TVIF_HANDLE)) != 0) {
        out.call.guest.Misuse("members of a tree's item that are not carried across", item.mask);
    }
    item.hItem = ItemOf(out, record.Get(&TreeItem::item));
    Address text = 0;
    if ((item.mask & TVIF_TEXT) != 0) {
        text = record.Get(&TreeItem::text);
        item.cchTextMax = record.Get(&TreeItem::textSize);
        item.pszText = static_cast<wchar_t*>(
            out.call.Room(text, static_cast<Word>(item.cchTextMax) * sizeof(wchar_t), sizeof(wchar_t)));
    }
    if ((item.mask & TVIF_STATE) != 0) {
        item.stateMask = record.Get(&TreeItem::stateMask);
    }
    const Word result = out.With(&item);
    if (result == 0) {
        return result;
    }
    if (text != 0) {
        out.call.MarkText(text, static_cast<Word>(item.cchTextMax));
    }
    if ((item.mask & TVIF_PARAM) != 0) {
        record.Set(&TreeItem::data, static_cast<Word>(item.lParam));
    }
    if ((item.mask & TVIF_STATE) != 0) {
        record.Set(&TreeItem::state, Word{item.state});
    }
    return result;
}

static Word WithItem(const Outgoing& out)
{
    return static_cast<Word>(out.DeliverWith(out.wParam, reinterpret_cast<LPARAM>(ItemOf(out, out.lParam))));
}

// What is below an item goes with it.
static void ForgetFrom(const Outgoing& out, HTREEITEM item)
{
    HTREEITEM child = item == TVI_ROOT ? TreeView_GetRoot(out.window) : TreeView_GetChild(out.window, item);
    for (; child != nullptr; child = TreeView_GetNextSibling(out.window, child)) {
        ForgetFrom(out, child);
    }
    out.call.guest.cookies.Forget(CookieKind::TreeItem, CookieFor(out, reinterpret_cast<LRESULT>(item)));
}

static Word DeleteItem(const Outgoing& out)
{
    const HTREEITEM item = ItemOf(out, out.lParam);
    ForgetFrom(out, item);
    return static_cast<Word>(out.DeliverWith(out.wParam, reinterpret_cast<LPARAM>(item)));
}

static Word GetNextItem(const Outgoing& out)
{
    return CookieFor(out, out.DeliverWith(out.wParam, reinterpret_cast<LPARAM>(ItemOf(out, out.lParam))));
}

static constexpr MessageBridge treeViewMessageRows[] = {
    {TVM_DELETEITEM, DeleteItem}, {TVM_ENSUREVISIBLE, WithItem},  {TVM_EXPAND, WithItem},
    {TVM_GETITEMW, GetItem},      {TVM_GETNEXTITEM, GetNextItem}, {TVM_INSERTITEMW, Insert},
    {TVM_SELECTITEM, WithItem},
};

MessageBridges TreeViewMessages()
{
    return treeViewMessageRows;
}

} // namespace runner
