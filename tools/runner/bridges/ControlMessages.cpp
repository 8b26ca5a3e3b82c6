// Messages to edit boxes, list boxes and combo boxes.
#include "tools/runner/bridges/ToHost.h"

namespace runner {

static Word WithText(const Outgoing& out)
{
    return out.With(out.call.TextAt(out.lParam));
}

// Room for the numbers is in both parameters, and either may be null.
static Word GetSelection(const Outgoing& out)
{
    auto* begin = static_cast<DWORD*>(out.call.Out(out.wParam, sizeof(DWORD)));
    auto* end = static_cast<DWORD*>(out.call.Out(out.lParam, sizeof(DWORD)));
    return static_cast<Word>(out.DeliverWith(reinterpret_cast<WPARAM>(begin), reinterpret_cast<LPARAM>(end)));
}

static constexpr MessageBridge controlMessageRows[] = {
    {CB_ADDSTRING, WithText},    {CB_FINDSTRINGEXACT, WithText}, {CB_INSERTSTRING, WithText},
    {CB_SELECTSTRING, WithText}, {EM_GETSEL, GetSelection},      {EM_REPLACESEL, WithText},
    {LB_ADDSTRING, WithText},    {LB_INSERTSTRING, WithText},
};

MessageBridges ControlMessages()
{
    return controlMessageRows;
}

} // namespace runner
