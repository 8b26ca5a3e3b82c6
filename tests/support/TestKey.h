// A registry key of the test's own under the user's software key.
#pragma once

#include <windows.h>

#include <string>

class TestKey
{
  private:
    std::wstring path; // below HKEY_CURRENT_USER

  public:
    TestKey();
    TestKey(const TestKey&) = delete;
    TestKey& operator=(const TestKey&) = delete;

    const wchar_t* Path() const { return path.c_str(); }
    std::wstring Below(const wchar_t* name) const { return path + L"\\" + name; }

    // Written past the program: any type and size.
    void Write(const wchar_t* name, DWORD type, const void* data, DWORD size) const;
    void MakeSubKey(const wchar_t* name) const;
};
