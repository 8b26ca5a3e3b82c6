// Memory, storage, cards and battery that exist only in a script: what the program asks the platform about
// them is answered from it.
#pragma once

#include "platform/ce.h"
#include "tests/support/ImportHook.h"

#include <map>
#include <string>
#include <vector>

struct ScriptedVolume
{
    uint64_t total = 0; // bytes
    uint64_t free = 0;
    uint64_t available = 0xABCDEF; // to the program, which is none of its business
    bool answers = true;           // else the question for its size fails and leaves the outputs alone
    bool exists = true;
};

// One at a time. 64 MB of memory, 128 MB of storage, no cards, and a battery at 76 percent.
class ScriptedDevice
{
  public:
    MEMORYSTATUS memory;
    SYSTEM_POWER_STATUS_EX battery;
    bool hasBattery = true;
    std::map<std::wstring, ScriptedVolume> volumes; // by path
    std::vector<std::wstring> cards;                // the names that the search finds
    std::vector<std::wstring> calls;                // what was asked, and each search that was closed
    std::vector<BOOL> updates;                      // as the battery was asked with
    DWORD memoryLength = 0;                         // of the record that memory was asked with
    bool clearRecord = false;                       // the first search for cards was given zeros

    ScriptedDevice();
    ~ScriptedDevice();
    ScriptedDevice(const ScriptedDevice&) = delete;
    ScriptedDevice& operator=(const ScriptedDevice&) = delete;

    // A card that the search finds and whose folder is there.
    void AddCard(const std::wstring& name, uint64_t total, uint64_t free);
    void AddCards(int count); // "Card 0" and so on, of 1 MB

  private:
    ImportHook hooks[7];
};
