// The platform calls that reading the Start menu cannot do without, and nothing else.
#include "bench/page/BareScan.h"

static constexpr int targetLength = 260;

void BareScan::Run(const std::wstring& folder)
{
    shortcuts = 0;
    ReadFolder(folder);
}

void BareScan::ReadFolder(const std::wstring& folder)
{
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileExW((folder + L"*.lnk").c_str(), FindExInfoStandard, &found,
                                     FindExSearchNameMatch, nullptr, 0);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            wchar_t target[targetLength];
            SHGetShortcutTarget((folder + found.cFileName).c_str(), target, targetLength);
            ++shortcuts;
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }
    search = FindFirstFileExW((folder + L"*").c_str(), FindExInfoStandard, &found,
                              FindExSearchLimitToDirectories, nullptr, 0);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            ReadFolder(folder + found.cFileName + L"\\");
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }
}
