// Shortcut files for tests.
#pragma once

#include "tests/support/TempFolder.h"

// A text link of the device's form, and one of the PC's form; both return the file's path.
std::wstring WriteTextLink(const TempFolder& folder, const wchar_t* name, const std::string& command);
std::wstring WritePcLink(const TempFolder& folder, const wchar_t* name, const wchar_t* target,
                         const wchar_t* arguments = L"", const wchar_t* startFolder = L"");
