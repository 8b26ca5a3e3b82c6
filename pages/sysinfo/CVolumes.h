// The volumes of the device: the internal storage, then each storage card.
#pragma once

#include "framework/CStr.h"

// One after the other, as for a row or a paragraph each:
//     for (CVolumes volumes; volumes.Next();)
// A volume that does not tell its size shows the one before it once more; the first shows zeros.
class CVolumes
{
    CStr name; // of the card's folder
    ULARGE_INTEGER total = {};
    ULARGE_INTEGER free = {};
    bool begun = false;
    WIN32_FIND_DATAW* card = nullptr; // what the search for cards finds
    HANDLE search = INVALID_HANDLE_VALUE;

  public:
    CVolumes() = default;
    ~CVolumes();
    CVolumes(const CVolumes&) = delete;
    CVolumes& operator=(const CVolumes&) = delete;

    // To the first, then to the next one; false behind the last. Cards without a name, and those whose folder
    // is not there, are passed over.
    bool Next();

    bool IsCard() const { return !name.IsEmpty(); }
    const CStr& Name() const { return name; }         // empty for the internal storage
    uint64_t Total() const { return total.QuadPart; } // bytes
    uint64_t Free() const { return free.QuadPart; }

  private:
    bool NextFolder();
    void AskSize(const wchar_t* path);
};
