// Who claims which keys, in place of the shell.
#include "tests/support/ScriptedClaims.h"

ScriptedClaims* ScriptedClaims::current = nullptr;

static const auto claimsLibrary = reinterpret_cast<HMODULE>(0x7C0020);

static std::string Narrow(const wchar_t* text)
{
    return std::string(text, text + wcslen(text));
}

BOOL WINAPI ScriptedClaims::Drop(UINT modifiers, UINT vk)
{
    current->calls.push_back("drop " + std::to_string(modifiers) + " " + std::to_string(vk));
    return TRUE;
}

std::string ScriptedClaims::Window(HWND window) const
{
    if (window == nullptr) {
        return "0";
    }
    return window == expectedWindow ? "window" : "another window";
}

ScriptedClaims::ScriptedClaims()
{
    current = this;
    load.instead = [this](const wchar_t* name) {
        calls.push_back("load " + Narrow(name));
        return hasLibrary ? claimsLibrary : nullptr;
    };
    find.instead = [this](HMODULE module, const wchar_t* name) {
        calls.push_back((module == claimsLibrary ? "find " : "find elsewhere ") + Narrow(name));
        return hasFunction ? reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&Drop)) : nullptr;
    };
    free.instead = [this](HMODULE module) {
        calls.emplace_back(module == claimsLibrary ? "free" : "free another");
        return TRUE;
    };
    claim.instead = [this](HWND window, int id, UINT modifiers, UINT vk) {
        calls.push_back("claim " + Window(window) + " " + std::to_string(id) + " " +
                        std::to_string(modifiers) + " " + std::to_string(vk));
        return TRUE;
    };
    release.instead = [this](HWND window, int id) {
        calls.push_back("release " + Window(window) + " " + std::to_string(id));
        return TRUE;
    };
}

ScriptedClaims::~ScriptedClaims()
{
    current = nullptr;
}

std::vector<std::string> ScriptedClaims::TakeCalls()
{
    std::vector<std::string> taken;
    taken.swap(calls);
    return taken;
}
