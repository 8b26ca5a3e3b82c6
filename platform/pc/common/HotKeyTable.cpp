// HotKeyTable: who has claimed which key of the handheld.
#include "platform/pc/common/HotKeyTable.h"

#include "platform/ce/Windows.h"

#include <algorithm>

namespace handheld {

static UINT WithoutKeyUp(UINT modifiers)
{
    return modifiers & ~static_cast<UINT>(MOD_KEYUP);
}

static void Tell(HWND window, int id, UINT modifiers, UINT key)
{
    PostMessageW(window, WM_HOTKEY, static_cast<WPARAM>(id), MAKELPARAM(modifiers, key));
}

HotKeyTable::HotKeyTable(std::vector<UINT> keysOfTheShell) : shellKeys(std::move(keysOfTheShell))
{
    for (UINT key : shellKeys) {
        claims.push_back({nullptr, 0, static_cast<int>(key), MOD_WIN, key});
    }
}

DWORD HotKeyTable::Answer(const KeyRequest& request)
{
    ForgetDead();
    switch (request.kind) {
    case KeyRequest::Kind::Claim:
        return Add(request);
    case KeyRequest::Kind::Release:
        return Remove(WindowOf(request), request.id);
    case KeyRequest::Kind::Drop:
        return Drop(request.modifiers, request.key);
    }
    return ERROR_INVALID_PARAMETER;
}

bool HotKeyTable::Press(UINT key)
{
    ForgetDead();
    const auto claim = Find(MOD_WIN, key);
    if (claim == claims.end() || !claim->window) {
        return false;
    }
    pressed.push_back(*claim);
    Tell(claim->window, claim->id, WithoutKeyUp(claim->modifiers), key);
    return true;
}

// Who claimed the key meanwhile knows nothing of the press and must not hear of the release.
void HotKeyTable::Release(UINT key)
{
    ForgetDead();
    const auto told =
        std::find_if(pressed.begin(), pressed.end(), [=](const Claim& claim) { return claim.key == key; });
    if (told == pressed.end()) {
        return;
    }
    const Claim before = *told;
    pressed.erase(told);
    const auto now = Find(MOD_WIN, key);
    if (now != claims.end() && now->window == before.window && now->id == before.id &&
        (now->modifiers & MOD_KEYUP) != 0) {
        Tell(now->window, now->id, now->modifiers, key);
    }
}

DWORD HotKeyTable::Add(const KeyRequest& request)
{
    const HWND window = WindowOf(request);
    const DWORD thread = window ? GetWindowThreadProcessId(window, nullptr) : 0;
    if (window && thread == 0) {
        return ERROR_INVALID_WINDOW_HANDLE;
    }
    if (Find(WithoutKeyUp(request.modifiers), request.key) != claims.end()) {
        return ERROR_HOTKEY_ALREADY_REGISTERED;
    }
    claims.push_back({window, thread, request.id, request.modifiers, request.key});
    return ERROR_SUCCESS;
}

DWORD HotKeyTable::Remove(HWND window, int id)
{
    const auto claim = std::find_if(claims.begin(), claims.end(),
                                    [=](const Claim& one) { return one.window == window && one.id == id; });
    if (claim == claims.end()) {
        return ERROR_HOTKEY_NOT_REGISTERED;
    }
    const Claim removed = *claim;
    claims.erase(claim);
    GiveBack(removed);
    return ERROR_SUCCESS;
}

DWORD HotKeyTable::Drop(UINT modifiers, UINT key)
{
    const auto claim = Find(WithoutKeyUp(modifiers), key);
    if (claim == claims.end()) {
        return ERROR_HOTKEY_NOT_REGISTERED;
    }
    claims.erase(claim);
    return ERROR_SUCCESS;
}

// A window's number may have gone to another one: the thread tells.
void HotKeyTable::ForgetDead()
{
    for (size_t i = claims.size(); i-- > 0;) {
        const Claim claim = claims[i];
        if (claim.window && GetWindowThreadProcessId(claim.window, nullptr) != claim.thread) {
            claims.erase(claims.begin() + static_cast<std::ptrdiff_t>(i));
            GiveBack(claim);
        }
    }
}

void HotKeyTable::GiveBack(const Claim& claim)
{
    const bool isShells = std::find(shellKeys.begin(), shellKeys.end(), claim.key) != shellKeys.end();
    if (isShells && WithoutKeyUp(claim.modifiers) == MOD_WIN) {
        claims.push_back({nullptr, 0, static_cast<int>(claim.key), MOD_WIN, claim.key});
    }
}

std::vector<HotKeyTable::Claim>::iterator HotKeyTable::Find(UINT modifiers, UINT key)
{
    return std::find_if(claims.begin(), claims.end(), [=](const Claim& claim) {
        return claim.key == key && WithoutKeyUp(claim.modifiers) == modifiers;
    });
}

} // namespace handheld
