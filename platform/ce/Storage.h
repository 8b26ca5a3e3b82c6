// note_prj.dll: the storage cards.
#pragma once

#include "platform/ce/Windows.h"

extern "C" {
// By their numbers, 7 and 8: the folders of the storage cards in the root, one a call; the search is closed
// with FindClose. INVALID_HANDLE_VALUE when there is none.
__declspec(dllimport) HANDLE WINAPI FindFirstFlashCard(WIN32_FIND_DATAW* card);
__declspec(dllimport) BOOL WINAPI FindNextFlashCard(HANDLE search, WIN32_FIND_DATAW* card);
}
