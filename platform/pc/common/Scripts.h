// What a profile may say in place of the PC's real state. A figure that is not set is the PC's.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace handheld {

// What a heap walk of one program shall find: heaps, each a list of block sizes in bytes. An empty heap is
// one whose walk fails at its first block.
struct HeapScript
{
    std::wstring program; // executable file name, lower case
    std::vector<std::vector<unsigned>> heaps;
};

// What the device refuses to do with the processes of one program, or to tell of them.
struct ProcessScript
{
    std::wstring program; // executable file name, lower case
    bool refusesOpen = false;
    bool refusesEnd = false;
    bool noModuleSnapshot = false;
    bool noModules = false; // there is a snapshot, but no first module in it
    bool noModulePaths = false;
    bool noHeaps = false;
    bool hidden = false; // not among the processes
};

struct StorageScript
{
    std::wstring path; // as the program asks for it, lower case
    bool fails = false;
    unsigned long long total = 0; // bytes
    unsigned long long free = 0;
};

struct AmountScript
{
    std::optional<unsigned long long> total; // bytes
    std::optional<unsigned long long> free;
};

struct MemoryScript
{
    AmountScript physical;
    AmountScript pageFile;
    AmountScript virtualSpace;
};

struct BatteryScript
{
    bool present = true;
    bool onlyWhenMissing = false; // a battery of the PC is shown as it is
    std::optional<unsigned char> percent;
    std::optional<unsigned char> lineStatus;
    std::optional<unsigned char> backupPercent;
    std::optional<unsigned long> life; // seconds
    std::optional<unsigned long> fullLife;
};

} // namespace handheld
