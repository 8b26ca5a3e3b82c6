// Replaces a function that this executable, or a library, imports, for as long as the object lives.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>

// The program under test is linked into the test executable, so its platform calls go through the same import
// table as the test's own and GoogleTest's: choose functions accordingly. Hooks of one function nest like the
// scopes they are in. A function that is not imported ends the test program: the hook would have had no
// effect.
class ImportHook
{
  private:
    static const size_t mostSlots = 4;
    HMODULE importer = nullptr; // null: this executable
    void** slots[mostSlots];
    size_t slotCount = 0;
    void* original = nullptr;
    void* replacement;

  public:
    template <typename Function>
    ImportHook(const char* function, Function* with) : replacement(reinterpret_cast<void*>(with))
    {
        HookName(function);
    }

    // For what a loaded library calls itself.
    template <typename Function>
    ImportHook(HMODULE library, const char* function, Function* with)
        : importer(library), replacement(reinterpret_cast<void*>(with))
    {
        HookName(function);
    }

    // For what a library exports without a name: "aygshell.dll", 9.
    template <typename Function>
    ImportHook(const char* library, uint16_t ordinal, Function* with)
        : replacement(reinterpret_cast<void*>(with))
    {
        HookOrdinal(library, ordinal);
    }

    ~ImportHook();
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;

    template <typename Function>
    Function* Original() const
    {
        return reinterpret_cast<Function*>(original);
    }

  private:
    void HookName(const char* function);
    void HookOrdinal(const char* library, uint16_t ordinal);
    void Take(void** slot);
    void RequireFound(const char* what) const;
};
