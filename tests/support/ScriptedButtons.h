// A button registry of the test's own in place of the device's.
#pragma once

#include "tests/support/Spy.h"
#include "tests/support/TestKey.h"

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

// One at a time. What the program opens below the machine's "Software\Microsoft\Shell\Keys" is the test's
// key.
class ScriptedButtons
{
  public:
    using Values =
        std::map<std::wstring, std::pair<DWORD, std::vector<unsigned char>>>; // by name: type, data

    std::set<std::wstring> refused;   // buttons that cannot be opened, by their keys; "" is the shell's key
    std::vector<std::wstring> writes; // of the program: "40C1 Default"
    int machineOpens = 0;             // of anything else in the machine's hive
    int openKeys = 0;                 // opened here and not closed yet

    ScriptedButtons();

    void Add(const std::wstring& button) const;
    void Write(const std::wstring& button, const wchar_t* value, DWORD type, const void* data,
               size_t size) const;
    void WriteText(const std::wstring& button, const wchar_t* value, const std::wstring& text) const;
    void WriteNumber(const std::wstring& button, const wchar_t* value, DWORD number) const;

    Values Read(const std::wstring& button) const;
    // A text or a number; empty or -1 when the value is missing or something else.
    std::wstring Text(const std::wstring& button, const wchar_t* value) const;
    long long Number(const std::wstring& button, const wchar_t* value) const;

  private:
    TestKey key;
    std::map<HKEY, std::wstring> open; // the buttons that the program has open
    SPY(RegOpenKeyExW) openKey;
    SPY(RegCloseKey) closeKey;
    SPY(RegSetValueExW) setValue;
};
