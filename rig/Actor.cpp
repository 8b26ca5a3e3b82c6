// Actor: a running actor.exe and its windows, for tests that need other programs with particular windows.
#include "rig/Actor.h"

#include "rig/Desktop.h"
#include "rig/WaitFor.h"

namespace rig {

template <size_t size>
static bool CopyText(const std::wstring& text, wchar_t (&buffer)[size])
{
    if (text.size() >= size) {
        return false;
    }
    text.copy(buffer, text.size());
    buffer[text.size()] = L'\0';
    return true;
}

static LRESULT Order(HWND control, actor::Order order, const void* data, size_t size)
{
    COPYDATASTRUCT copy = {order, static_cast<DWORD>(size), const_cast<void*>(data)};
    return Send(control, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy));
}

Actor::Actor(const std::wstring& executable) : process(executable, L"")
{
    const std::wstring id = std::to_wstring(process.Id());
    WaitFor([&] {
        control = FindWindowExW(HWND_MESSAGE, nullptr, actor::controlClass, id.c_str());
        return control || !process.Running();
    });
}

HWND Actor::Make(const ActorWindowSpec& spec) const
{
    actor::WindowOrder order = {};
    if (!CopyText(spec.className, order.className) || !CopyText(spec.title, order.title)) {
        return nullptr;
    }
    order.style = spec.style;
    order.exStyle = spec.exStyle;
    order.owner = spec.owner;
    order.place = spec.place;
    order.closing = spec.closing;
    order.delay = spec.delay;
    order.colour = spec.colour;
    order.endsActor = spec.endsActor;
    order.exitCode = spec.exitCode;
    return reinterpret_cast<HWND>(Order(control, actor::MakeWindow, &order, sizeof(order)));
}

void Actor::Vanish(HWND window) const
{
    Order(control, actor::VanishWindow, &window, sizeof(window));
}

void Actor::Focus(HWND window) const
{
    Order(control, actor::FocusWindow, &window, sizeof(window));
}

void Actor::StartThreads(DWORD count) const
{
    Order(control, actor::StartThreads, &count, sizeof(count));
}

void Actor::Leave(DWORD exitCode) const
{
    Order(control, actor::EndProcess, &exitCode, sizeof(exitCode));
}

bool Hang(HWND window)
{
    PostMessageW(window, WM_CLOSE, 0, 0);
    return WaitFor([=] { return !Answers(window, std::chrono::milliseconds(100)); });
}

int CloseCount(HWND window)
{
    return static_cast<int>(Send(window, RegisterWindowMessageW(actor::closeCountMessage)));
}

int KeyCount(HWND window)
{
    return static_cast<int>(Send(window, RegisterWindowMessageW(actor::keyCountMessage)));
}

int MoveCount(HWND window)
{
    return static_cast<int>(Send(window, RegisterWindowMessageW(actor::moveCountMessage)));
}

} // namespace rig
