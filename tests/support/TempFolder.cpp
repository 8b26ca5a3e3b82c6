// A folder of the test's own, which goes when the test program ends.
#include "tests/support/TempFolder.h"

#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>

TempFolder::TempFolder() : folder(ScratchFolder() + L"\\" + ScratchName())
{
    EXPECT_TRUE(CreateDirectoryW(folder.c_str(), nullptr)) << "error " << GetLastError();
}

std::wstring TempFolder::WriteFile(const wchar_t* name, const std::vector<unsigned char>& bytes) const
{
    const std::wstring path = Path(name);
    FILE* const file = _wfopen(path.c_str(), L"wb");
    EXPECT_NE(file, nullptr) << "error " << GetLastError();
    if (file) {
        const size_t written = bytes.empty() ? 0 : fwrite(bytes.data(), 1, bytes.size(), file);
        EXPECT_EQ(written, bytes.size());
        fclose(file);
    }
    return path;
}

std::wstring TempFolder::MakeFolder(const wchar_t* name) const
{
    const std::wstring path = Path(name);
    EXPECT_TRUE(CreateDirectoryW(path.c_str(), nullptr)) << "error " << GetLastError();
    return path;
}
