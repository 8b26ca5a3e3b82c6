// Keys that belong to the shell, and who gets them.
#include "keys/ShellKeys.h"

#include "framework/Assert.h"

static constexpr int homeHotKey = 1; // of the main window

namespace {
// What ends a claim on a key, the shell's too. It stands in no header and no import library.
class CUnregisterFunction
{
    using Function = BOOL WINAPI(UINT modifiers, UINT vk);
    HMODULE library;

  public:
    Function* function = nullptr;

    CUnregisterFunction() : library(LoadLibraryW(L"coredll.dll"))
    {
        if (library != nullptr) {
            auto* address = reinterpret_cast<void*>(GetProcAddressW(library, L"UnregisterFunc1"));
            function = reinterpret_cast<Function*>(address);
        }
    }
    ~CUnregisterFunction()
    {
        if (library != nullptr) {
            FreeLibrary(library);
        }
    }
    CUnregisterFunction(const CUnregisterFunction&) = delete;
    CUnregisterFunction& operator=(const CUnregisterFunction&) = delete;

    bool IsLoaded() const { return library != nullptr; }
};
} // namespace

void ReclaimButton(uint32_t vk)
{
    static constexpr wchar_t where[] = L"CDialogKeys::HandleCommand";
    const CUnregisterFunction unregister;
    AssertText(unregister.IsLoaded(), L"Key_Err1", where, __LINE__);
    AssertText(unregister.function != nullptr, L"Key_Err2", where, __LINE__);
    unregister.function(MOD_WIN, vk);
    RegisterHotKey(nullptr, static_cast<int>(vk), MOD_WIN, vk);
}

void CaptureHomeKey(HWND window, const wchar_t* function)
{
    const CUnregisterFunction unregister;
    AssertText(unregister.function != nullptr, L"Can't handle key", function, __LINE__);
    unregister.function(MOD_WIN, VK_LWIN);
    RegisterHotKey(window, homeHotKey, MOD_WIN | MOD_KEYUP, VK_LWIN);
}

void ReleaseHomeKey(HWND window)
{
    UnregisterHotKey(window, homeHotKey);
}
