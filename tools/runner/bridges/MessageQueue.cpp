// Messages in the queue, and sending them.
#include "tools/runner/bridges/MessageQueue.h"

#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/ToHost.h"
#include "tools/runner/bridges/WindowProcedures.h"

#include <map>

namespace runner {

static constexpr Word firstKept = 0xEED00000;
static constexpr Word mostKept = 0x1000;

// By what the guest sees as lParam. A timer's procedure stands there too, and a number of Wine's for one must
// not be extended by its sign.
static std::map<Word, MSG>& Kept()
{
    static std::map<Word, MSG> kept;
    return kept;
}

void GiveQueued(const Record<guest::QueuedMessage>& record, const MSG& message)
{
    auto lParam = static_cast<Word>(message.lParam);
    if (static_cast<LPARAM>(static_cast<LONG>(lParam)) != message.lParam) {
        static Word next = 0;
        lParam = firstKept + next++ % mostKept;
        Kept()[lParam] = message;
    }
    record.SetAll({WordOf(message.hwnd), message.message, static_cast<Word>(message.wParam), lParam,
                   message.time, message.pt});
}

MSG TakeQueued(const Record<guest::QueuedMessage>& record)
{
    const guest::QueuedMessage queued = record.GetAll();
    MSG message = {};
    message.hwnd = HandleOf<HWND>(queued.window);
    message.message = queued.message;
    message.wParam = queued.wParam;
    message.lParam = static_cast<LONG>(queued.lParam);
    message.time = queued.time;
    message.pt = queued.place;
    const auto kept = Kept().find(queued.lParam);
    if (kept != Kept().end() && kept->second.message == queued.message) {
        message.wParam = kept->second.wParam;
        message.lParam = kept->second.lParam;
    }
    return message;
}

static Word DoGetMessage(Call& call)
{
    MSG message = {};
    const auto record = call.RecordAt<guest::QueuedMessage>(0);
    if (call.guest.watcher) {
        call.guest.watcher->BeforeWait();
    }
    const BOOL result = GetMessageW(&message, HandleAt<HWND>(call, 1), call.Argument(2), call.Argument(3));
    if (result >= 0) {
        GiveQueued(record, message);
    }
    return static_cast<Word>(result);
}

static Word DoTranslateMessage(Call& call)
{
    const MSG message = TakeQueued(call.RecordAt<guest::QueuedMessage>(0));
    return static_cast<Word>(TranslateMessage(&message));
}

static Word DoDispatchMessage(Call& call)
{
    const MSG message = TakeQueued(call.RecordAt<guest::QueuedMessage>(0));
    return static_cast<Word>(DispatchMessageW(&message));
}

static Word DoTranslateAccelerator(Call& call)
{
    MSG message = TakeQueued(call.RecordAt<guest::QueuedMessage>(2));
    return static_cast<Word>(
        TranslateAcceleratorW(HandleAt<HWND>(call, 0), HandleAt<HACCEL>(call, 1), &message));
}

static Word DoIsDialogMessage(Call& call)
{
    MSG message = TakeQueued(call.RecordAt<guest::QueuedMessage>(1));
    return static_cast<Word>(IsDialogMessageW(HandleAt<HWND>(call, 0), &message));
}

static Word DoPostMessage(Call& call)
{
    return static_cast<Word>(PostMessageW(HandleAt<HWND>(call, 0), call.Argument(1),
                                          static_cast<WPARAM>(call.Extended(2)), call.Signed(3)));
}

static Word DoSendMessage(Call& call)
{
    const auto deliver = [](WNDPROC, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        return SendMessageW(window, message, wParam, lParam);
    };
    return SendFromGuest({call, deliver, nullptr, HandleAt<HWND>(call, 0), call.Argument(1), call.Argument(2),
                          call.Argument(3)});
}

static Word DoDefWindowProc(Call& call)
{
    const auto deliver = [](WNDPROC, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProcW(window, message, wParam, lParam);
    };
    return SendFromGuest({call, deliver, nullptr, HandleAt<HWND>(call, 0), call.Argument(1), call.Argument(2),
                          call.Argument(3)});
}

static Word DoCallWindowProc(Call& call)
{
    const Address procedure = call.Argument(0);
    const WNDPROC host = WindowProcedures::Instance().HostOf(procedure);
    if (!host) {
        return call.guest.CallBack(procedure, call.Argument(1), call.Argument(2), call.Argument(3),
                                   call.Argument(4));
    }
    return SendFromGuest({call, CallWindowProcW, host, HandleAt<HWND>(call, 1), call.Argument(2),
                          call.Argument(3), call.Argument(4)});
}

static constexpr Bridge queueRows[] = {
    {"CallWindowProcW", DoCallWindowProc},
    {"DefWindowProcW", DoDefWindowProc},
    {"DestroyAcceleratorTable", "u g"},
    {"DispatchMessageW", DoDispatchMessage},
    {"GetMessageW", DoGetMessage},
    {"IsDialogMessageW", DoIsDialogMessage},
    {"PostMessageW", DoPostMessage},
    {"PostQuitMessage", "v i"},
    {"SendMessageW", DoSendMessage},
    {"TranslateAcceleratorW", DoTranslateAccelerator},
    {"TranslateMessage", DoTranslateMessage},
};

Bridges QueueBridges()
{
    return queueRows;
}

} // namespace runner
