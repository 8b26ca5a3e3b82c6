// The program's settings as a key of the test's own.
#pragma once

#include "tests/support/Spy.h"
#include "tests/support/TestKey.h"

#include <string>
#include <vector>

// One at a time, and not beside ScriptedButtons, which watches the same function.
class ScriptedSettings
{
  public:
    bool refused = false;              // the settings are not there, and cannot be made
    std::vector<std::wstring> created; // paths that were to be made

    ScriptedSettings();

    void WriteCommand(DWORD command) const { Write(L"HomeKeyCommand", REG_DWORD, &command, sizeof command); }
    void WriteFile(const std::wstring& file) const;
    void Write(const wchar_t* name, DWORD type, const void* data, DWORD size) const
    {
        key.Write(name, type, data, size);
    }

    // What is written; -1 and empty without.
    long long Command() const;
    std::wstring File() const;

  private:
    TestKey key;
    SPY(RegOpenKeyExW) open;
    SPY(RegCreateKeyExW) create;
};
