// Messages with structures that any window gets.
#include "tools/runner/bridges/MessageRecords.h"
#include "tools/runner/bridges/ToHost.h"

namespace runner {

static Word SendDrawItem(const Outgoing& out)
{
    const guest::DrawItem item = out.RecordAtLParam<guest::DrawItem>().GetAll();
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = item.type;
    draw.CtlID = item.id;
    draw.itemID = item.item;
    draw.itemAction = item.action;
    draw.itemState = item.state;
    draw.hwndItem = HandleOf<HWND>(item.window);
    draw.hDC = HandleOf<HDC>(item.dc);
    draw.rcItem = item.rect;
    draw.itemData = item.data;
    return out.With(&draw);
}

static Word SendCopyData(const Outgoing& out)
{
    const guest::CopyData copied = out.RecordAtLParam<guest::CopyData>().GetAll();
    COPYDATASTRUCT data = {copied.data, copied.size,
                           const_cast<void*>(out.call.In(copied.address, copied.size, 1))};
    return out.With(&data);
}

static Word SendText(const Outgoing& out)
{
    return out.With(out.call.TextAt(out.lParam));
}

static Word SendGetText(const Outgoing& out)
{
    const void* room = out.call.Room(out.lParam, out.wParam * sizeof(wchar_t), sizeof(wchar_t));
    const Word length = out.With(room);
    out.call.MarkText(out.lParam, out.wParam);
    return length;
}

static constexpr MessageBridge windowMessageRows[] = {
    {WM_COPYDATA, SendCopyData},
    {WM_DRAWITEM, SendDrawItem},
    {WM_GETTEXT, SendGetText},
    {WM_SETTEXT, SendText},
};

MessageBridges WindowMessages()
{
    return windowMessageRows;
}

} // namespace runner
