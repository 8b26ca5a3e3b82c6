// Windows: their classes, making and finding them, their places and numbers.
#include "tools/runner/bridges/ActiveMessages.h"
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/WindowProcedures.h"
#include "tools/runner/calls/PlainCall.h"

#include <algorithm>

namespace runner {

namespace {

struct WindowClass
{
    Word style;
    Word procedure;
    LONG classBytes;
    LONG windowBytes;
    Word instance;
    Word icon;
    Word cursor;
    Word background;
    Word menu;
    Word name;
};
static_assert(sizeof(WindowClass) == 40);

} // namespace

static void NeedOwnInstance(Call& call, Word instance)
{
    if (instance != call.guest.image) {
        call.guest.Misuse("an instance that is not the program's", instance);
    }
}

static Word DoRegisterClass(Call& call)
{
    const auto record = call.RecordAt<WindowClass>(0);
    NeedOwnInstance(call, record.Get(&WindowClass::instance));
    WNDCLASSW windowClass = {};
    windowClass.style = record.Get(&WindowClass::style);
    windowClass.lpfnWndProc = WindowProcedures::OfWindows;
    windowClass.cbClsExtra = record.Get(&WindowClass::classBytes);
    windowClass.cbWndExtra = record.Get(&WindowClass::windowBytes);
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hIcon = HandleOf<HICON>(record.Get(&WindowClass::icon));
    windowClass.hCursor = HandleOf<HCURSOR>(record.Get(&WindowClass::cursor));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(BrushOf(call, record.Get(&WindowClass::background)));
    windowClass.lpszMenuName = nullptr;
    if (record.Get(&WindowClass::menu) != 0) {
        call.guest.Misuse("a class with a menu, which the device does not have");
    }
    windowClass.lpszClassName = Wide(call.TextAt(record.Get(&WindowClass::name)));
    WindowProcedures::Instance().SetOfClass(windowClass.lpszClassName, record.Get(&WindowClass::procedure));
    return RegisterClassW(&windowClass);
}

static Word DoCreateWindow(Call& call)
{
    NeedOwnInstance(call, call.Argument(10));
    const HWND window = CreateWindowExW(
        call.Argument(0), Wide(call.TextOrNumber(1)), TextArgument(call, 2), call.Argument(3), call.Signed(4),
        call.Signed(5), call.Signed(6), call.Signed(7), HandleAt<HWND>(call, 8), HandleAt<HMENU>(call, 9),
        GetModuleHandleW(nullptr), reinterpret_cast<void*>(static_cast<ULONG_PTR>(call.Argument(11))));
    return WordOf(window);
}

struct Enumeration
{
    Address function;
    Word parameter;
};

static BOOL CALLBACK ForEachWindow(HWND window, LPARAM enumeration)
{
    const auto* each = reinterpret_cast<const Enumeration*>(enumeration);
    return static_cast<BOOL>(TheGuest().CallBack(each->function, WordOf(window), each->parameter));
}

static Word DoEnumWindows(Call& call)
{
    const Enumeration each = {call.Argument(0), call.Argument(1)};
    return static_cast<Word>(EnumWindows(ForEachWindow, reinterpret_cast<LPARAM>(&each)));
}

static Word DoGetWindowLong(Call& call)
{
    const HWND window = HandleAt<HWND>(call, 0);
    const int index = call.Signed(1);
    switch (index) {
    case GWLP_WNDPROC:
        return WindowProcedures::Instance().Of(window);
    case GWLP_HINSTANCE:
        return call.guest.image;
    case GWL_STYLE:
    case GWL_EXSTYLE:
    case GWLP_USERDATA:
    case GWLP_ID:
    case DWLP_MSGRESULT:
        return static_cast<Word>(GetWindowLongPtrW(window, index));
    default:
        call.guest.Misuse("a place of a window's that is not carried across", static_cast<Word>(index));
    }
}

static Word DoSetWindowLong(Call& call)
{
    const HWND window = HandleAt<HWND>(call, 0);
    const int index = call.Signed(1);
    switch (index) {
    case GWLP_WNDPROC:
        return WindowProcedures::Instance().Replace(window, call.Argument(2));
    case GWL_STYLE:
    case GWL_EXSTYLE:
    case GWLP_USERDATA:
    case GWLP_ID:
        return static_cast<Word>(SetWindowLongPtrW(window, index, static_cast<LONG_PTR>(call.Argument(2))));
    case DWLP_MSGRESULT:
        return static_cast<Word>(SetWindowLongPtrW(window, index, call.Signed(2)));
    default:
        call.guest.Misuse("a place of a window's that is not carried across", static_cast<Word>(index));
    }
}

// The device has other numbers for restoring and maximising, and not all of the desktop's ways.
static Word DoShowWindow(Call& call)
{
    static constexpr int ofBoth[] = {SW_HIDE, SW_SHOWNORMAL, SW_SHOWNOACTIVATE,
                                     SW_SHOW, SW_MINIMIZE,   SW_SHOWNA};
    const int way = call.Signed(1);
    if (std::find(std::begin(ofBoth), std::end(ofBoth), way) == std::end(ofBoth)) {
        call.guest.Misuse("a way to show a window that the device does not have", static_cast<Word>(way));
    }
    return static_cast<Word>(ShowWindow(HandleAt<HWND>(call, 0), way));
}

static Word DoMapWindowPoints(Call& call)
{
    const Word count = call.Argument(3);
    const Address points = call.Argument(2);
    call.In(points, count * sizeof(POINT));
    auto* place = static_cast<POINT*>(call.Out(points, count * sizeof(POINT)));
    return static_cast<Word>(MapWindowPoints(HandleAt<HWND>(call, 0), HandleAt<HWND>(call, 1), place, count));
}

static constexpr Bridge windowRows[] = {
    {"CreateWindowExW", DoCreateWindow},
    {"DestroyWindow", "u h"},
    {"EnableWindow", "u hi"},
    {"EnumWindows", DoEnumWindows},
    {"FindWindowW", "h st"},
    {"GetClassNameW", "u hTi"},
    {"GetClientRect", "u hq16"},
    {"GetDlgItem", "h hi"},
    {"GetFocus", "h"},
    {"GetForegroundWindow", "h"},
    {"GetWindow", "h hu"},
    {"GetWindowLongW", DoGetWindowLong},
    {"GetWindowRect", "u hq16"},
    {"GetWindowTextW", "u hTi"},
    {"GetWindowThreadProcessId", "u hq4"},
    {"HideCaret", "u h"},
    {"IsWindow", "u h"},
    {"IsWindowEnabled", "u h"},
    {"IsWindowVisible", "u h"},
    {"MapWindowPoints", DoMapWindowPoints},
    {"MoveWindow", "u hiiiii"},
    {"RegisterClassW", DoRegisterClass},
    {"SetFocus", "h h"},
    {"SetForegroundWindow", "u h"},
    {"SetWindowLongW", DoSetWindowLong},
    {"SetWindowPos", "u hhiiiiu"},
    {"SetWindowTextW", "u ht"},
    {"ShowWindow", DoShowWindow},
};

Bridges WindowBridges()
{
    return windowRows;
}

} // namespace runner
