// Messages of the host's for the guest's window procedures: their structures, put onto the guest's stack.
#include "tools/runner/bridges/ToGuest.h"

#include "tools/runner/bridges/ActiveMessages.h"
#include "tools/runner/bridges/MessageRecords.h"
#include "tools/runner/calls/Frame.h"

#include <cstdio>

namespace runner {

static constexpr Word mostOnStack = 0x400;
static constexpr Word notificationRoom = 128; // more than any notification has: the rest of it is undefined

// The guest gets an address that faults when it is used: a structure that no program of ours looks at.
static bool IsOpaque(UINT message)
{
    switch (message) {
    case WM_NCCALCSIZE:
    case WM_GETMINMAXINFO:
    case WM_WINDOWPOSCHANGING:
    case WM_WINDOWPOSCHANGED:
    case WM_GETTEXT:
    case WM_SETTEXT:
    case WM_SETTINGCHANGE:
    case WM_DEVMODECHANGE:
    case WM_STYLECHANGING:
    case WM_STYLECHANGED:
    case WM_MOVING:
    case WM_SIZING:
    case WM_HELP:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_DEVICECHANGE:
        return true;
    default:
        return false;
    }
}

static bool FitsWord(LPARAM lParam)
{
    return lParam >> 32 == 0 || lParam >> 31 == -1;
}

static Word PushText(Frame& frame, const wchar_t* text)
{
    return IS_INTRESOURCE(text) ? WordOf(text) : frame.PushText(Narrow(text));
}

static Word PushCreation(Guest& guest, Frame& frame, const CREATESTRUCTW& creation)
{
    const Word name = PushText(frame, creation.lpszName);
    const Word className = PushText(frame, creation.lpszClass);
    return frame.Push(guest::CreateStruct{WordOf(creation.lpCreateParams), guest.image,
                                          WordOf(creation.hMenu), WordOf(creation.hwndParent), creation.cy,
                                          creation.cx, creation.y, creation.x, creation.style, name,
                                          className, creation.dwExStyle});
}

static Word PushDrawItem(Frame& frame, const DRAWITEMSTRUCT& draw)
{
    return frame.Push(guest::DrawItem{draw.CtlType, draw.CtlID, draw.itemID, draw.itemAction, draw.itemState,
                                      WordOf(draw.hwndItem), WordOf(draw.hDC), draw.rcItem,
                                      static_cast<Word>(draw.itemData)});
}

static Word PushNotification(Guest& guest, Frame& frame, const NMHDR& header)
{
    const Address address = frame.Reserve(notificationRoom);
    const guest::NotifyHeader ofGuest = {WordOf(header.hwndFrom), static_cast<Word>(header.idFrom),
                                         header.code};
    guest.machine.memory.Write(address, ofGuest);
    switch (header.code) {
    case LVN_ITEMCHANGING:
    case LVN_ITEMCHANGED:
    case LVN_ITEMACTIVATE:
    case NM_CLICK:
    case NM_DBLCLK: {
        const auto& list = reinterpret_cast<const NMLISTVIEW&>(header);
        guest.machine.memory.Write(
            address, guest::NotifyListView{ofGuest, list.iItem, list.iSubItem, list.uNewState, list.uOldState,
                                           list.uChanged, list.ptAction, static_cast<Word>(list.lParam)});
        break;
    }
    case GN_CONTEXTMENU: {
        const auto* place = reinterpret_cast<const POINT*>(&header + 1);
        guest.machine.memory.Write(address, guest::NotifyGesture{ofGuest, *place, 0});
        break;
    }
    default:
        break;
    }
    return address;
}

// Large data lie elsewhere, as on the device: the stack is small.
static Word PushCopyData(Guest& guest, Frame& frame, const COPYDATASTRUCT& copied, Address& elsewhere)
{
    Address data = 0;
    if (copied.lpData && copied.cbData != 0) {
        if (copied.cbData <= mostOnStack) {
            data = frame.Push(copied.lpData, copied.cbData);
        } else {
            elsewhere = guest.machine.heap.Allocate(copied.cbData, guest.machine.processor.Place());
            data = elsewhere;
            std::memcpy(guest.machine.memory.Checked(data, 1, copied.cbData, Access::Write), copied.lpData,
                        copied.cbData);
        }
    }
    return frame.Push(guest::CopyData{static_cast<Word>(copied.dwData), copied.cbData, data});
}

static std::string PartName(HWND window, UINT message)
{
    char name[64] = {};
    GetClassNameA(window, name, sizeof name);
    char text[16];
    std::snprintf(text, sizeof text, " 0x%04x", message);
    return std::string(name) + text;
}

static Word ParameterFor(Guest& guest, Frame& frame, UINT message, LPARAM lParam, Address& elsewhere)
{
    switch (message) {
    case WM_NCCREATE:
    case WM_CREATE:
        return PushCreation(guest, frame, *reinterpret_cast<const CREATESTRUCTW*>(lParam));
    case WM_DRAWITEM:
        return PushDrawItem(frame, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    case WM_MEASUREITEM: {
        const auto* item = reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam);
        return frame.Push(guest::MeasureItem{item->CtlType, item->CtlID, item->itemID, item->itemWidth,
                                             item->itemHeight, static_cast<Word>(item->itemData)});
    }
    case WM_NOTIFY:
        return PushNotification(guest, frame, *reinterpret_cast<const NMHDR*>(lParam));
    case WM_COPYDATA:
        return PushCopyData(guest, frame, *reinterpret_cast<const COPYDATASTRUCT*>(lParam), elsewhere);
    case WM_GETDLGCODE:
        if (lParam != 0) {
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            return frame.Push(guest::QueuedMessage{WordOf(key->hwnd), key->message,
                                                   static_cast<Word>(key->wParam),
                                                   static_cast<Word>(key->lParam), key->time, key->pt});
        }
        return 0;
    default:
        return lParam != 0 && (IsOpaque(message) || !FitsWord(lParam))
                   ? ActiveMessages::Instance().NextOpaque()
                   : static_cast<Word>(lParam);
    }
}

LRESULT GiveToGuest(Address procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Guest& guest = TheGuest();
    const Counts::Section part(guest.counts, PartName(window, message));
    Frame frame(guest);
    Address elsewhere = 0;
    const Word guestLParam = ParameterFor(guest, frame, message, lParam, elsewhere);
    const Word guestWParam = static_cast<Word>(wParam);
    ActiveMessages::Instance().Begin({window, message, wParam, lParam, guestWParam, guestLParam});
    const Word result = guest.CallBack(procedure, WordOf(window), message, guestWParam, guestLParam);
    ActiveMessages::Instance().End();
    if (message == WM_MEASUREITEM) {
        const Record<guest::MeasureItem> measured(guest.machine.memory, guestLParam);
        auto* item = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        item->itemWidth = measured.Get(&guest::MeasureItem::width);
        item->itemHeight = measured.Get(&guest::MeasureItem::height);
    }
    if (elsewhere != 0) {
        guest.machine.heap.Free(elsewhere, guest.machine.processor.Place());
    }
    return static_cast<LONG>(result);
}

} // namespace runner
