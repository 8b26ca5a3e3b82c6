// One open registry key.
#include "framework/CVireoRegistry.h"

#include "framework/Assert.h"

CVireoRegistry::CVireoRegistry() : key(nullptr), rootKey(nullptr) {}

CVireoRegistry::~CVireoRegistry()
{
    Close();
}

bool CVireoRegistry::Open(HKEY root, const wchar_t* path)
{
    const CStr wanted(path); // the path may be this object's own, which closing clears
    Close();
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, wanted, 0, KEY_ALL_ACCESS, &opened) != ERROR_SUCCESS) {
        return false;
    }
    key = opened;
    keyPath = wanted;
    rootKey = root;
    return true;
}

bool CVireoRegistry::Create(HKEY root, const wchar_t* path)
{
    const CStr wanted(path);
    if (Open(root, wanted)) {
        return true;
    }
    HKEY created = nullptr;
    if (RegCreateKeyExW(root, wanted, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &created,
                        nullptr) != ERROR_SUCCESS) {
        return false;
    }
    RegCloseKey(created);
    return Open(root, wanted);
}

void CVireoRegistry::Close()
{
    if (key) {
        RegCloseKey(key);
    }
    key = nullptr;
    keyPath.Empty();
    rootKey = nullptr;
}

bool CVireoRegistry::ReadUint(const wchar_t* name, uint32_t* value) const
{
    Assert(key != nullptr, ErrorNotInUse, L"CVireoRegistry::ReadUint", __LINE__);
    uint32_t data = 0;
    DWORD size = sizeof(data);
    const LONG result = RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&data), &size);
    // Only a value that is there has a size; a longer one is reported as "more data".
    if (result == ERROR_SUCCESS || result == ERROR_MORE_DATA) {
        Assert(size == sizeof(data), ErrorInvalidValue, L"CVireoRegistry::ReadUint", __LINE__);
    }
    if (result != ERROR_SUCCESS) {
        return false;
    }
    *value = data;
    return true;
}

bool CVireoRegistry::ReadString(const wchar_t* name, CStr& text) const
{
    Assert(key != nullptr, ErrorNotInUse, L"CVireoRegistry::ReadString", __LINE__);
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExW(key, name, nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
        return false;
    }
    Assert(type == REG_SZ, ErrorInvalidValue, L"CVireoRegistry::ReadString", __LINE__);

    // Read beside the string, which stays as it was if the value goes meanwhile. The zeroed buffer is one
    // character longer than the data, so a value stored without a terminator has one.
    CStr data(size / sizeof(wchar_t) + 1);
    if (RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(data.Buffer()), &size) !=
        ERROR_SUCCESS) {
        return false;
    }
    text.SetFixedSize(0);
    text = data;
    return true;
}

bool CVireoRegistry::ReadIfUint(const wchar_t* name, uint32_t* value) const
{
    DWORD type = 0;
    DWORD size = 0;
    return RegQueryValueExW(key, name, nullptr, &type, nullptr, &size) == ERROR_SUCCESS &&
           type == REG_DWORD && size == sizeof *value && ReadUint(name, value);
}

bool CVireoRegistry::ReadIfString(const wchar_t* name, CStr& text) const
{
    return GetValueType(name) == REG_SZ && ReadString(name, text);
}

void CVireoRegistry::WriteUint(const wchar_t* name, uint32_t value)
{
    const LONG result =
        RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof(value));
    Assert(result == ERROR_SUCCESS, ErrorGeneric, L"CVireoRegistry::WriteUint", __LINE__);
}

void CVireoRegistry::WriteString(const wchar_t* name, const wchar_t* text)
{
    const wchar_t* const written = text ? text : L"";
    const DWORD size = static_cast<DWORD>((wcslen(written) + 1) * sizeof(wchar_t));
    const LONG result = RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(written), size);
    Assert(result == ERROR_SUCCESS, ErrorGeneric, L"CVireoRegistry::WriteString", __LINE__);
}

bool CVireoRegistry::IsValueExists(const wchar_t* name) const
{
    return RegQueryValueExW(key, name, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

uint32_t CVireoRegistry::GetValueType(const wchar_t* name) const
{
    DWORD type = 0;
    if (RegQueryValueExW(key, name, nullptr, &type, nullptr, nullptr) != ERROR_SUCCESS) {
        return 0;
    }
    return type;
}

void CVireoRegistry::EnumSubKeys(CStrList& names) const
{
    names.Clear();
    DWORD count = 0;
    DWORD longest = 0; // characters without a terminator
    if (RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &count, &longest, nullptr, nullptr, nullptr, nullptr,
                         nullptr, nullptr) != ERROR_SUCCESS) {
        return;
    }
    CStr name(longest);
    for (DWORD i = 0; i < count; i++) {
        DWORD size = longest + 1;
        if (RegEnumKeyExW(key, i, name.Buffer(), &size, nullptr, nullptr, nullptr, nullptr) ==
            ERROR_SUCCESS) {
            names.Append(name);
        }
    }
}
