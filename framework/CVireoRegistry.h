// One open registry key: opened with full access, created on request, its values read and written.
#pragma once

#include "framework/CStr.h"
#include "framework/CStrList.h"

// Missing keys and values are plain results; a value of an unexpected size or type and a failed write are
// fatal.
class CVireoRegistry
{
  private:
    HKEY key; // null when closed
    CStr keyPath;
    HKEY rootKey;

  public:
    CVireoRegistry();
    ~CVireoRegistry();
    CVireoRegistry(const CVireoRegistry&) = delete;
    CVireoRegistry& operator=(const CVireoRegistry&) = delete;

    bool Open(HKEY root, const wchar_t* path);
    bool Create(HKEY root, const wchar_t* path); // opens the key, making it first where it is missing
    void Close();
    bool IsOpen() const { return key != nullptr; }
    const CStr& Path() const { return keyPath; }
    HKEY Root() const { return rootKey; }

    // False leaves the value as it was. The type is not checked, only the size of 4 bytes.
    bool ReadUint(const wchar_t* name, uint32_t* value) const;
    bool ReadString(const wchar_t* name, CStr& text) const; // text becomes dynamic
    // Anything but a number of 4 bytes, or a string, is as good as no value: for what other programs write.
    bool ReadIfUint(const wchar_t* name, uint32_t* value) const;
    bool ReadIfString(const wchar_t* name, CStr& text) const;
    void WriteUint(const wchar_t* name, uint32_t value);
    void WriteString(const wchar_t* name, const wchar_t* text);
    bool IsValueExists(const wchar_t* name) const;
    uint32_t GetValueType(const wchar_t* name) const; // 0 when it cannot be queried

    void EnumSubKeys(CStrList& names) const;
};
