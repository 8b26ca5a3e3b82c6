// Replaces a function that an executable or a library imports.
#include "tests/support/ImportHook.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

// What lies in a loaded file, at distances from its beginning.
class LoadedFile
{
    BYTE* image;

  public:
    explicit LoadedFile(HMODULE module)
        : image(reinterpret_cast<BYTE*>(module ? module : GetModuleHandleW(nullptr)))
    {}

    template <typename T>
    T* At(ULONGLONG distance) const
    {
        return reinterpret_cast<T*>(image + distance);
    }

    // Calls visit(library, lookup entry, slot) for every import.
    template <typename Visit>
    void ForEachImport(Visit visit) const
    {
        const auto* headers = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
        const IMAGE_DATA_DIRECTORY& imports =
            headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(imports.VirtualAddress); library->Name; library++) {
            auto* lookup = At<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
            auto* slot = At<void*>(library->FirstThunk);
            for (; lookup->u1.AddressOfData; lookup++, slot++) {
                visit(At<const char>(library->Name), *lookup, slot);
            }
        }
    }
};

static void Write(void** slot, void* value)
{
    DWORD protection = 0;
    VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &protection);
    *slot = value;
    VirtualProtect(slot, sizeof(*slot), protection, &protection);
}

void ImportHook::Take(void** slot)
{
    if (slotCount == mostSlots) {
        fprintf(stderr, "ImportHook: a function is imported too many times\n");
        abort();
    }
    original = *slot;
    slots[slotCount++] = slot;
}

void ImportHook::RequireFound(const char* what) const
{
    if (slotCount) {
        for (size_t i = 0; i < slotCount; i++) {
            Write(slots[i], replacement);
        }
        return;
    }
    fprintf(stderr, "ImportHook: %s is not imported\n", what);
    abort();
}

void ImportHook::HookName(const char* function)
{
    const LoadedFile file(importer);
    file.ForEachImport([&](const char*, const IMAGE_THUNK_DATA& lookup, void** slot) {
        if (IMAGE_SNAP_BY_ORDINAL(lookup.u1.Ordinal)) {
            return;
        }
        const auto* entry = file.At<IMAGE_IMPORT_BY_NAME>(lookup.u1.AddressOfData);
        if (strcmp(reinterpret_cast<const char*>(entry->Name), function) == 0) {
            Take(slot);
        }
    });
    RequireFound(function);
}

void ImportHook::HookOrdinal(const char* library, uint16_t ordinal)
{
    LoadedFile(importer).ForEachImport([&](const char* from, const IMAGE_THUNK_DATA& lookup, void** slot) {
        if (IMAGE_SNAP_BY_ORDINAL(lookup.u1.Ordinal) && IMAGE_ORDINAL(lookup.u1.Ordinal) == ordinal &&
            _stricmp(from, library) == 0) {
            Take(slot);
        }
    });
    RequireFound(library);
}

ImportHook::~ImportHook()
{
    for (size_t i = 0; i < slotCount; i++) {
        Write(slots[i], original);
    }
}
