// A file that exists already.
#include "framework/CFile.h"

#include "framework/Assert.h"

CFile::CFile(bool failuresAreFatal)
    : open(false), assertOnFailure(failuresAreFatal), file(INVALID_HANDLE_VALUE)
{}

CFile::~CFile()
{
    if (open) {
        Close();
    }
}

bool CFile::Open(const wchar_t* path, bool readOnly, bool exclusive)
{
    Assert(!open, ErrorAlreadyInUse, L"CFile::Open", __LINE__);
    const DWORD access = readOnly ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const DWORD sharing = exclusive ? 0 : FILE_SHARE_READ | FILE_SHARE_WRITE;
    file = CreateFileW(path, access, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    open = file != INVALID_HANDLE_VALUE;
    Assert(open || !assertOnFailure, ErrorGeneric, L"CFile::Open", __LINE__);
    return open;
}

void CFile::Close()
{
    Assert(open, ErrorNotInUse, L"CFile::Close", __LINE__);
    Assert(file != INVALID_HANDLE_VALUE, ErrorNotInUse, L"CFile::Close", __LINE__);
    CloseHandle(file);
    file = INVALID_HANDLE_VALUE;
    open = false;
}

uint32_t CFile::Size() const
{
    Assert(open, ErrorNotInUse, L"CFile::Size", __LINE__);
    const DWORD size = GetFileSize(file, nullptr);
    Assert(size != INVALID_FILE_SIZE, ErrorGeneric, L"CFile::Size", __LINE__);
    return size;
}

bool CFile::CanHold(uint32_t offset, uint32_t bytes) const
{
    Assert(open, ErrorNotInUse, L"CFile::CanHold", __LINE__);
    DWORD high = 0;
    const DWORD low = GetFileSize(file, &high);
    if (low == INVALID_FILE_SIZE || high) {
        return true;
    }
    return offset <= low && bytes <= low - offset;
}

bool CFile::Read(void* buffer, uint32_t* n)
{
    Assert(open, ErrorNotInUse, L"CFile::Read", __LINE__);
    DWORD delivered = 0;
    const bool done = ReadFile(file, buffer, *n, &delivered, nullptr);
    Assert(done || !assertOnFailure, ErrorGeneric, L"CFile::Read", __LINE__);
    *n = delivered;
    return done;
}

bool CFile::ReadFixed(void* buffer, uint32_t n)
{
    Assert(open, ErrorNotInUse, L"CFile::ReadFixed", __LINE__);
    DWORD delivered = 0;
    const bool done = ReadFile(file, buffer, n, &delivered, nullptr) && delivered == n;
    Assert(done || !assertOnFailure, ErrorGeneric, L"CFile::ReadFixed", __LINE__);
    return done;
}

bool CFile::ReadText(wchar_t* buffer, uint32_t n)
{
    Assert(n <= UINT32_MAX / sizeof(wchar_t), ErrorInvalidValue, L"CFile::ReadText", __LINE__);
    uint32_t bytes = n * sizeof(wchar_t);
    const bool done = Read(buffer, &bytes);
    buffer[bytes / sizeof(wchar_t)] = 0;
    return done;
}

bool CFile::ReadText(char* buffer, uint32_t n)
{
    uint32_t bytes = n;
    const bool done = Read(buffer, &bytes);
    buffer[bytes] = 0;
    return done;
}

void CFile::SeekBegin(uint32_t offset)
{
    Assert(open, ErrorNotInUse, L"CFile::SeekBegin", __LINE__);
    const DWORD position = SetFilePointer(file, static_cast<LONG>(offset), nullptr, FILE_BEGIN);
    const bool failed = position == INVALID_SET_FILE_POINTER && GetLastError() != NO_ERROR;
    Assert(!failed, ErrorGeneric, L"CFile::SeekBegin", __LINE__);
}
