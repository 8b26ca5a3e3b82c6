// KeyHook: sees every key of the keyboard before any program does.
#include "platform/pc/handheld/KeyHook.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/ControlWindow.h"
#include "platform/pc/common/ProcessPath.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/handheld/OwnFolder.h"

using handheld::KeyEvent;

static KeyHook* current = nullptr; // a hook gets nothing of its own with a key

// On the user's own desktop the keys are the handheld's only in front of the handheld's own programs.
static bool AreKeysOurs()
{
    if (handheld::HasOwnDesktop()) {
        return true;
    }
    DWORD id = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &id);
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id);
    const std::wstring path = process ? handheld::PathOfProcess(process) : std::wstring();
    if (process) {
        CloseHandle(process);
    }
    const std::wstring folder = OwnFolder();
    return path.size() > folder.size() &&
           CompareStringOrdinal(path.c_str(), static_cast<int>(folder.size()), folder.c_str(),
                                static_cast<int>(folder.size()), TRUE) == CSTR_EQUAL;
}

KeyHook::KeyHook(HWND controlWindow)
    : control(controlWindow), filter(handheld::ActiveProfile().IsSmartphone())
{
    current = this;
}

KeyHook::~KeyHook()
{
    if (thread) {
        PostThreadMessageW(threadId, WM_QUIT, 0, 0);
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
    }
    current = nullptr;
}

bool KeyHook::Start()
{
    started = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread = CreateThread(nullptr, 0, Run, this, 0, &threadId);
    if (thread) {
        WaitForSingleObject(started, INFINITE);
    }
    CloseHandle(started);
    return hook != nullptr;
}

DWORD WINAPI KeyHook::Run(void* self)
{
    auto& me = *static_cast<KeyHook*>(self);
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); // makes the queue that the end is posted to
    me.hook = SetWindowsHookExW(WH_KEYBOARD_LL, SeeKey, GetModuleHandleW(nullptr), 0);
    SetEvent(me.started);
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    }
    UnhookWindowsHookEx(me.hook);
    return 0;
}

LRESULT CALLBACK KeyHook::SeeKey(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && current->TakeKey(*reinterpret_cast<const KBDLLHOOKSTRUCT*>(lParam))) {
        return 1;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// True when no program must see the key.
bool KeyHook::TakeKey(const KBDLLHOOKSTRUCT& key)
{
    const handheld::PcKey pcKey = {key.vkCode, (key.flags & LLKHF_EXTENDED) != 0};
    if ((key.flags & LLKHF_UP) == 0 && !AreKeysOurs()) {
        return false;
    }
    const KeyEvent event =
        (key.flags & LLKHF_UP) != 0 ? filter.Release(pcKey) : filter.Press(pcKey, isLocked);
    Tell(event);
    return event.swallowed;
}

// The state first: whoever is started by the key asks for it.
void KeyHook::Tell(const KeyEvent& event) const
{
    switch (event.kind) {
    case KeyEvent::Kind::None:
        break;
    case KeyEvent::Kind::Pressed:
    case KeyEvent::Kind::Released: {
        const bool down = event.kind == KeyEvent::Kind::Pressed;
        handheld::SetButtonHeld(control, event.key, down);
        PostMessageW(control, handheld::WM_HANDHELD_KEY, static_cast<WPARAM>(event.key), down);
        break;
    }
    case KeyEvent::Kind::WhileLocked: {
        const bool shift = (GetAsyncKeyState(VK_SHIFT) & 0x8000) != 0;
        PostMessageW(control, handheld::WM_KEY_WHILE_LOCKED, static_cast<WPARAM>(event.key), shift);
        break;
    }
    }
}
