// The device's hardware buttons, as the shell keeps them in its registry: read, given to the program, and
// given back.
#pragma once

#include "framework/CRecords.h"
#include "keys/SHardwareKey.h"

class CVireoRegistry;

class CHardwareKeys
{
    CRecords<SHardwareKey> keys;

  public:
    uint32_t Count() const { return keys.Count(); }
    SHardwareKey& At(uint32_t index) { return *keys.At(index); }

    void Clear() { keys.Clear(); }
    // Reads all buttons anew, by their names; none when the device's shell keeps none.
    void Load();
    // Writes every button whose command is to change. False when it had to stop, which the user was told;
    // what was written before stays.
    bool Save();

  private:
    void Add(const wchar_t* name);
    void Sort();
    static void Save(CVireoRegistry& registry, const SHardwareKey& key);
};
