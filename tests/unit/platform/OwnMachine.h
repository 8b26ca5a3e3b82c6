// OwnMachine: the hives of the machine and of the user are a registry key of the test's own while it lives.
#pragma once

#include "tests/support/TestKey.h"

class OwnMachine
{
  public:
    OwnMachine();
    ~OwnMachine();
    OwnMachine(const OwnMachine&) = delete;
    OwnMachine& operator=(const OwnMachine&) = delete;

    // A value of the machine's hive, of any type and size; its key is made if need be.
    void Write(const std::wstring& key, const wchar_t* name, DWORD type, const void* data, DWORD size) const;
    // The text of a value; what is not there or no text is told so.
    std::wstring Text(const std::wstring& key, const wchar_t* name) const;
    // The number of a value; -1 for no number.
    int Number(const std::wstring& key, const wchar_t* name) const;

  private:
    HKEY machine = nullptr;
    HKEY user = nullptr;
};
