// Keys, hot keys and timers.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

static Word DoSetTimer(Call& call)
{
    if (call.Argument(3) != 0) {
        call.guest.Misuse("a timer with a procedure is not carried across");
    }
    return static_cast<Word>(SetTimer(HandleAt<HWND>(call, 0), call.Argument(1), call.Argument(2), nullptr));
}

// The result is a number of 16 bits; what is above them is not the function's.
static Word DoGetAsyncKeyState(Call& call)
{
    return static_cast<Word>(GetAsyncKeyState(call.Signed(0)));
}

static constexpr Bridge keyRows[] = {
    {"GetAsyncKeyState", DoGetAsyncKeyState},
    {"IsClipboardFormatAvailable", "u u"},
    {"KillTimer", "u hu"},
    {"RegisterHotKey", "u hiuu"},
    {"SetTimer", DoSetTimer},
    {"UnregisterFunc1", "u uu"},
    {"UnregisterHotKey", "u hi"},
    {"keybd_event", "v uuuu"},
};

Bridges KeyBridges()
{
    return keyRows;
}

} // namespace runner
