// The storage cards of the note_prj substitute: the folders that the profile names.
#include "platform/ce.h"
#include "platform/pc/common/ActiveProfile.h"

#include <map>

// The next card of each search. A search that was closed stays here until its handle comes again.
static std::map<HANDLE, size_t> searches;

static BOOL GiveCard(size_t number, WIN32_FIND_DATAW* data)
{
    const std::vector<std::wstring>& cards = handheld::ActiveProfile().cards;
    if (number >= cards.size()) {
        SetLastError(ERROR_NO_MORE_FILES);
        return FALSE;
    }
    *data = {};
    data->dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY;
    lstrcpynW(data->cFileName, cards[number].c_str(), MAX_PATH);
    return TRUE;
}

// The program closes the search with FindClose, so its handle is that of a real one: for the system's own
// folder, which is always there.
extern "C" HANDLE WINAPI ce_FindFirstFlashCard(WIN32_FIND_DATAW* card)
{
    wchar_t folder[MAX_PATH] = {};
    WIN32_FIND_DATAW found = {};
    if (!GiveCard(0, card)) {
        return INVALID_HANDLE_VALUE;
    }
    GetWindowsDirectoryW(folder, MAX_PATH);
    const HANDLE search = FindFirstFileW(folder, &found);
    if (search != INVALID_HANDLE_VALUE) {
        searches[search] = 1;
    }
    return search;
}

extern "C" BOOL WINAPI ce_FindNextFlashCard(HANDLE search, WIN32_FIND_DATAW* card)
{
    const auto found = searches.find(search);
    if (found == searches.end()) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    return GiveCard(found->second++, card);
}
