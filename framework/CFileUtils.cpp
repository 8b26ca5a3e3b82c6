// Where the program's own files lie, and whether a file exists.
#include "framework/CFileUtils.h"

#include "framework/Assert.h"

void CFileUtils::MakeAppFolderPath(CStr& out)
{
    Assert(out.FixedSize() != 0, ErrorInvalidValue, L"CFileUtils::MakeAppFolderPath", __LINE__);
    out.Empty();
    GetModuleFileNameW(nullptr, out.Buffer(), out.FixedSize());
    const int backslash = out.ReverseFind(L'\\');
    Assert(backslash >= 0, ErrorNotFound, L"CFileUtils::MakeAppFolderPath", __LINE__);
    *out.At(static_cast<uint32_t>(backslash) + 1) = 0;
}

void CFileUtils::MakeAppFilePath(CStr& out, const wchar_t* fileName)
{
    MakeAppFolderPath(out);
    out.Append(fileName);
}

bool CFileUtils::FileExists(const wchar_t* path)
{
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW(path, &data);
    if (search == INVALID_HANDLE_VALUE) {
        return false;
    }
    FindClose(search);
    return true;
}
