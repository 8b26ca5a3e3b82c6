// The volumes of the device.
#include "pages/sysinfo/CVolumes.h"

#include "framework/CFileUtils.h"

CVolumes::~CVolumes()
{
    if (search != INVALID_HANDLE_VALUE) {
        FindClose(search);
    }
    if (card != nullptr) {
        LocalFree(card);
    }
}

bool CVolumes::Next()
{
    if (!begun) {
        begun = true;
        AskSize(L"\\");
        return true;
    }
    while (NextFolder()) {
        name.Assign(card->cFileName, MAX_PATH);
        CStr path(L"\\");
        path.Append(name);
        if (!name.IsEmpty() && CFileUtils::FileExists(path)) {
            AskSize(path);
            return true;
        }
    }
    return false;
}

bool CVolumes::NextFolder()
{
    if (card != nullptr) {
        return search != INVALID_HANDLE_VALUE && FindNextFlashCard(search, card);
    }
    card = static_cast<WIN32_FIND_DATAW*>(LocalAlloc(LPTR, sizeof *card));
    if (card != nullptr) {
        search = FindFirstFlashCard(card);
    }
    return search != INVALID_HANDLE_VALUE;
}

// A failed query leaves the size as it was, on purpose.
void CVolumes::AskSize(const wchar_t* path)
{
    ULARGE_INTEGER available = {}; // to this program; what is free at all is shown
    GetDiskFreeSpaceExW(path, &available, &total, &free);
}
