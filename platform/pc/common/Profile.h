// Profile: the description of the handheld that the substitute DLLs and the shell pretend to be.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace handheld {

// What a heap walk of one program shall find: heaps, each a list of block sizes in bytes. An empty heap is
// one whose walk fails at its first block.
struct HeapScript
{
    std::wstring program; // executable file name, lower case
    std::vector<std::vector<unsigned>> heaps;
};

struct Profile
{
    std::wstring platformName = L"PocketPC"; // as SPI_GETPLATFORMTYPE answers it
    int width = 240;                         // pixels of the screen
    int height = 320;
    int dpi = 96;
    int securityTier = 0;            // 1 or 2; 0 leaves it to the failure at hand
    std::vector<std::wstring> cards; // folders of the storage cards
    std::vector<HeapScript> heapScripts;

    bool IsSmartphone() const;
    // The script for a program by its file name or path; null when its real heaps count.
    const HeapScript* FindHeapScript(std::wstring_view program) const;
};

// Reads the text of a profile file. Unknown sections and keys are ignored; a malformed value leaves the
// default.
Profile ParseProfile(std::wstring_view text);

} // namespace handheld
