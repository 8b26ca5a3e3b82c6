// Functions of libraries, by their names.
#include <windows.h>

#include <string>

// The device's names are wide. A name that no library can have, because it is not plain ASCII, is not found.
extern "C" FARPROC WINAPI ce_GetProcAddressW(HMODULE library, const wchar_t* name)
{
    if (IS_INTRESOURCE(name)) {
        return GetProcAddress(library, MAKEINTRESOURCEA(LOWORD(name)));
    }
    std::string narrow;
    for (const wchar_t* character = name; *character; ++character) {
        narrow += static_cast<char>(*character < 0x80 ? *character : '?');
    }
    return GetProcAddress(library, narrow.c_str());
}
