// Stylus: input by the system, time by hand.
#include "tests/ui/platform/Stylus.h"

static constexpr DWORD middle = 50; // ms
static DWORD waited;
static std::function<void()> action;

static void Send(POINT point, DWORD flags)
{
    const auto steps = [](LONG pixel, int size) {
        return static_cast<LONG>((static_cast<LONGLONG>(pixel) * 65536 + size - 1) / size);
    };
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = steps(point.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = steps(point.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

Stylus::Stylus()
    : sleep(GetModuleHandleW(L"aygshell.dll"), "Sleep", PassTime),
      tickCount(GetModuleHandleW(L"aygshell.dll"), "GetTickCount", Time)
{
    waited = 0;
    action = nullptr;
}

Stylus::~Stylus()
{
    Lift();
}

void Stylus::Press(POINT screen)
{
    Send(screen, MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_LEFTDOWN);
}

void Stylus::Move(POINT screen)
{
    Send(screen, MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
}

void Stylus::Lift()
{
    Send({}, MOUSEEVENTF_LEFTUP);
}

void Stylus::Then(std::function<void()> theAction)
{
    action = std::move(theAction);
}

DWORD Stylus::Waited()
{
    return waited;
}

void WINAPI Stylus::PassTime(DWORD milliseconds)
{
    waited += milliseconds;
    if (action && waited >= middle) {
        const auto todo = std::move(action);
        action = nullptr;
        todo();
    }
}

DWORD WINAPI Stylus::Time()
{
    return waited;
}
