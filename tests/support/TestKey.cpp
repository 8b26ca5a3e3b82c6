// A registry key of the test's own, which goes when the test program ends.
#include "tests/support/TestKey.h"

#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

static HKEY CreateKey(const std::wstring& path)
{
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                              nullptr),
              ERROR_SUCCESS);
    return key;
}

TestKey::TestKey() : path(ScratchKey() + L"\\" + ScratchName())
{
    RegCloseKey(CreateKey(path));
}

void TestKey::Write(const wchar_t* name, DWORD type, const void* data, DWORD size) const
{
    const HKEY key = CreateKey(path);
    EXPECT_EQ(RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), size), ERROR_SUCCESS);
    RegCloseKey(key);
}

void TestKey::MakeSubKey(const wchar_t* name) const
{
    RegCloseKey(CreateKey(Below(name)));
}
