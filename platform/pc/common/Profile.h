// Profile: the description of the handheld that the substitute DLLs and the shell pretend to be.
#pragma once

#include "platform/pc/common/Scripts.h"

#include <string>
#include <string_view>
#include <vector>

namespace handheld {

struct Profile
{
    std::wstring platformName = L"PocketPC"; // as SPI_GETPLATFORMTYPE answers it
    int width = 240;                         // pixels of the screen, upright
    int height = 320;
    int dpi = 96;
    int orientation = 0;             // how it is held at the start, as Orientation.h names it
    int securityTier = 0;            // 1 or 2; 0 leaves it to the failure at hand
    std::wstring root;               // folder without a backslash at its end; empty: the system's drive
    std::wstring startMenu;          // folder on the device; empty: the PC's own
    int holdMilliseconds = 1000;     // how long the stylus is held for a tap-and-hold
    std::vector<std::wstring> cards; // folders of the storage cards in the root; a name may be empty
    MemoryScript memory;
    BatteryScript battery;
    std::vector<StorageScript> storageScripts;
    std::vector<HeapScript> heapScripts;
    std::vector<ProcessScript> processScripts;

    bool IsSmartphone() const;
    // The scripts for a program by its file name or path; null when what is real counts.
    const HeapScript* FindHeapScript(std::wstring_view program) const;
    const ProcessScript* FindProcessScript(std::wstring_view program) const;
    const StorageScript* FindStorageScript(std::wstring_view path) const;
};

// Reads the text of a profile file. Unknown sections and keys are ignored; a malformed value leaves the
// default.
Profile ParseProfile(std::wstring_view text);

} // namespace handheld
