// A function of a system library that most processes never need. The library is not among this one's imports,
// which every start waits for: the first call loads it.
#pragma once

#include <windows.h>

namespace handheld {

// Null on a system that lacks it.
template <typename Function>
Function* SystemFunction(const wchar_t* library, const char* name)
{
    const HMODULE module = LoadLibraryW(library);
    return module ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)))
                  : nullptr;
}

} // namespace handheld
