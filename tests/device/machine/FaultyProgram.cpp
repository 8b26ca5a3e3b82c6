// One fault for each letter that its command line can begin with. Without one it does the same work rightly.
#include "platform/ce.h"

// Keeps the compiler from seeing what an address leads to.
template <class T>
[[gnu::noinline]] static T* Hidden(T* pointer)
{
    T* volatile hidden = pointer;
    return hidden;
}

[[gnu::noinline]] static void StoreThrough(volatile DWORD* place)
{
    *place = 1;
}

[[gnu::noinline]] static DWORD LoadFrom(const volatile DWORD* place)
{
    return *place;
}

[[gnu::noinline]] static void Unaligned()
{
    BYTE bytes[8] = {};
    StoreThrough(reinterpret_cast<DWORD*>(Hidden(bytes) + 1));
}

[[gnu::noinline]] static void IntoConstants()
{
    static const DWORD constants[] = {1, 2};
    StoreThrough(const_cast<DWORD*>(Hidden(constants)));
}

[[gnu::noinline]] static void BehindBlock(int behind)
{
    DWORD* block = new DWORD[4];
    StoreThrough(block + 3 + behind);
    delete[] block;
}

[[gnu::noinline]] static void AfterDelete()
{
    DWORD* block = Hidden(new DWORD(7));
    delete block;
    Sleep(LoadFrom(block));
}

[[gnu::noinline]] static void DeletedTwice()
{
    DWORD* block = Hidden(new DWORD(7));
    delete block;
    delete Hidden(block);
}

[[gnu::noinline]] static void NeverWritten(bool write)
{
    DWORD* block = Hidden(new DWORD[2]);
    if (write) {
        block[1] = 4;
    }
    if (LoadFrom(block + 1) == 4) {
        Sleep(2);
    }
    delete[] block;
}

[[gnu::noinline]] static void HandedOver()
{
    DWORD* block = Hidden(new DWORD[2]);
    Sleep(LoadFrom(block));
    delete[] block;
}

[[gnu::noinline]] static DWORD* OfAFunctionThatReturned()
{
    DWORD local = 5;
    return Hidden(&local);
}

[[gnu::noinline]] static DWORD Deeper(DWORD depth)
{
    volatile DWORD room[100];
    room[depth % 100] = depth;
    return depth == 0 ? room[0] : Deeper(depth - 1) + room[depth % 100];
}

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t* commandLine, int)
{
    switch (*commandLine) {
    case L'a':
        Unaligned();
        break;
    case L'b':
        StoreThrough(nullptr);
        break;
    case L'c':
        IntoConstants();
        break;
    case L'd':
        BehindBlock(1);
        break;
    case L'e':
        AfterDelete();
        break;
    case L'f':
        DeletedTwice();
        break;
    case L'g':
        NeverWritten(false);
        break;
    case L'h':
        HandedOver();
        break;
    case L'i':
        Sleep(LoadFrom(OfAFunctionThatReturned()));
        break;
    case L'j':
        Sleep(Deeper(1000));
        break;
    case L'k':
        reinterpret_cast<void (*)()>(Hidden(new DWORD(0xE12FFF1E)))();
        break;
    default:
        BehindBlock(0);
        NeverWritten(true);
        Sleep(Deeper(10));
    }
    return 0;
}
