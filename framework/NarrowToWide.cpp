// Narrow text to wide text.
#include "framework/NarrowToWide.h"

#include "framework/Assert.h"

wchar_t* NarrowToWide(const char* text)
{
    if (!text || !*text) {
        return nullptr;
    }
    const int size = MultiByteToWideChar(frameworkCodePage, 0, text, -1, nullptr, 0); // terminator included
    if (size <= 0) {
        return nullptr;
    }
    wchar_t* const wide = new wchar_t[static_cast<size_t>(size)];
    Assert(wide != nullptr, ErrorNoMemory, L"NarrowToWide", __LINE__);
    if (MultiByteToWideChar(frameworkCodePage, 0, text, -1, wide, size) == size) {
        return wide;
    }
    delete[] wide;
    return nullptr;
}
