// OwnMachine: a machine's and a user's hive of the test's own.
#include "tests/unit/platform/OwnMachine.h"

#include <gtest/gtest.h>

static HKEY Make(HKEY root, const wchar_t* path)
{
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExW(root, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr), 0);
    return key;
}

OwnMachine::OwnMachine()
{
    const TestKey key;
    machine = Make(HKEY_CURRENT_USER, key.Below(L"Machine").c_str());
    user = Make(HKEY_CURRENT_USER, key.Below(L"User").c_str());
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine), 0);
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, user), 0);
}

OwnMachine::~OwnMachine()
{
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(machine);
    RegCloseKey(user);
}

void OwnMachine::Write(const std::wstring& key, const wchar_t* name, DWORD type, const void* data,
                       DWORD size) const
{
    const HKEY made = Make(machine, key.c_str());
    EXPECT_EQ(RegSetValueExW(made, name, 0, type, static_cast<const BYTE*>(data), size), 0);
    RegCloseKey(made);
}

std::wstring OwnMachine::Text(const std::wstring& key, const wchar_t* name) const
{
    wchar_t text[300] = {};
    DWORD size = sizeof text;
    const LONG result = RegGetValueW(machine, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return result == ERROR_SUCCESS ? text : L"no text";
}

int OwnMachine::Number(const std::wstring& key, const wchar_t* name) const
{
    DWORD number = 0;
    DWORD size = sizeof number;
    const LONG result = RegGetValueW(machine, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &number, &size);
    return result == ERROR_SUCCESS ? static_cast<int>(number) : -1;
}
