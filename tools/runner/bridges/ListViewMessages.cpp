// Messages to list views.
#include "tools/runner/bridges/ToHost.h"

namespace runner {

namespace {

struct ListItem
{
    Word mask;
    LONG item;
    LONG subItem;
    Word state;
    Word stateMask;
    Word text;
    LONG textSize;
    LONG image;
    Word data;
    LONG indent;
};

struct ListColumn
{
    Word mask;
    LONG format;
    LONG width;
    Word text;
    LONG textSize;
    LONG subItem;
    LONG image;
    LONG order;
};
static_assert(sizeof(ListColumn) == 32);

} // namespace

// Of the device; the desktop has more.
static constexpr Word columnMask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM | LVCF_IMAGE | LVCF_ORDER;
static constexpr Word listItemMask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM | LVIF_STATE | LVIF_INDENT;

static Word SetItemState(const Outgoing& out)
{
    const auto record = out.RecordAtLParam<ListItem>();
    LVITEMW item = {};
    item.state = record.Get(&ListItem::state);
    item.stateMask = record.Get(&ListItem::stateMask);
    return out.With(&item);
}

// Only what the mask names is looked at.
static Word SetItem(const Outgoing& out)
{
    const auto record = out.RecordAtLParam<ListItem>();
    LVITEMW item = {};
    item.mask = record.Get(&ListItem::mask);
    if ((item.mask & ~listItemMask) != 0) {
        out.call.guest.Misuse("a mask of a list's item that the device does not have", item.mask);
    }
    item.iItem = record.Get(&ListItem::item);
    item.iSubItem = record.Get(&ListItem::subItem);
    if ((item.mask & LVIF_TEXT) != 0) {
        item.pszText = const_cast<wchar_t*>(Wide(out.call.TextAt(record.Get(&ListItem::text))));
    }
    if ((item.mask & LVIF_STATE) != 0) {
        item.state = record.Get(&ListItem::state);
        item.stateMask = record.Get(&ListItem::stateMask);
    }
    if ((item.mask & LVIF_IMAGE) != 0) {
        item.iImage = record.Get(&ListItem::image);
    }
    if ((item.mask & LVIF_PARAM) != 0) {
        item.lParam = static_cast<LONG>(record.Get(&ListItem::data));
    }
    if ((item.mask & LVIF_INDENT) != 0) {
        item.iIndent = record.Get(&ListItem::indent);
    }
    return out.With(&item);
}

static Word SetColumn(const Outgoing& out)
{
    const auto record = out.RecordAtLParam<ListColumn>();
    LVCOLUMNW column = {};
    column.mask = record.Get(&ListColumn::mask);
    if ((column.mask & ~columnMask) != 0) {
        out.call.guest.Misuse("a mask of a list's column that the device does not have", column.mask);
    }
    if ((column.mask & LVCF_FMT) != 0) {
        column.fmt = record.Get(&ListColumn::format);
    }
    if ((column.mask & LVCF_WIDTH) != 0) {
        column.cx = record.Get(&ListColumn::width);
    }
    if ((column.mask & LVCF_TEXT) != 0) {
        column.pszText = const_cast<wchar_t*>(Wide(out.call.TextAt(record.Get(&ListColumn::text))));
    }
    if ((column.mask & LVCF_SUBITEM) != 0) {
        column.iSubItem = record.Get(&ListColumn::subItem);
    }
    if ((column.mask & LVCF_IMAGE) != 0) {
        column.iImage = record.Get(&ListColumn::image);
    }
    if ((column.mask & LVCF_ORDER) != 0) {
        column.iOrder = record.Get(&ListColumn::order);
    }
    return out.With(&column);
}

// The rectangle's left member says which part is asked for.
static Word GetItemRect(const Outgoing& out)
{
    const auto record = out.RecordAtLParam<RECT>();
    RECT rect = {record.Get(&RECT::left), 0, 0, 0};
    const Word result = out.With(&rect);
    if (result != 0) {
        record.SetAll(rect);
    }
    return result;
}

static constexpr MessageBridge listViewMessageRows[] = {
    {LVM_GETITEMRECT, GetItemRect}, {LVM_INSERTCOLUMNW, SetColumn},   {LVM_INSERTITEMW, SetItem},
    {LVM_SETCOLUMNW, SetColumn},    {LVM_SETITEMSTATE, SetItemState}, {LVM_SETITEMW, SetItem},
};

MessageBridges ListViewMessages()
{
    return listViewMessageRows;
}

} // namespace runner
