// The storage cards of the note_prj substitute.
#include "platform/ce.h"

extern "C" HANDLE WINAPI ce_FindFirstFlashCard(WIN32_FIND_DATAW* /*card*/)
{
    SetLastError(ERROR_NO_MORE_FILES);
    return INVALID_HANDLE_VALUE;
}

extern "C" BOOL WINAPI ce_FindNextFlashCard(HANDLE /*search*/, WIN32_FIND_DATAW* /*card*/)
{
    SetLastError(ERROR_NO_MORE_FILES);
    return FALSE;
}
