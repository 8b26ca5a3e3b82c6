// Where the handheld's own programs are.
#include "platform/pc/handheld/OwnFolder.h"

#include <windows.h>

std::wstring OwnFolder()
{
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program(path, length < MAX_PATH ? length : 0);
    const size_t end = program.find_last_of(L'\\');
    return end == std::wstring::npos ? std::wstring() : program.substr(0, end);
}
