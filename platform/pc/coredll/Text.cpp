// Letter case: the device's C functions know every script, the PC's only ASCII.
#include <windows.h>

static wchar_t Lower(wchar_t c)
{
    return static_cast<wchar_t>(
        reinterpret_cast<ULONG_PTR>(CharLowerW(reinterpret_cast<wchar_t*>(static_cast<ULONG_PTR>(c)))));
}

extern "C" int ce__wcsicmp(const wchar_t* a, const wchar_t* b)
{
    for (;; ++a, ++b) {
        const wchar_t x = *a == *b ? *a : Lower(*a);
        const wchar_t y = *a == *b ? *b : Lower(*b);
        if (x != y) {
            return x < y ? -1 : 1;
        }
        if (x == L'\0') {
            return 0;
        }
    }
}

extern "C" wchar_t* ce__wcslwr(wchar_t* text)
{
    return CharLowerW(text);
}
