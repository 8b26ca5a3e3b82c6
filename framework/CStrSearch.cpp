// CStr: comparing, finding, and copies of its parts.
#include "framework/Assert.h"
#include "framework/CStr.h"

int CStr::CompareNoCase(const wchar_t* text) const
{
    return _wcsicmp(buffer, text ? text : L"");
}

int CStr::Find(const wchar_t* text, uint32_t start) const
{
    if (!text) {
        return -1;
    }
    Assert(start <= Length(), ErrorOutOfRange, L"CStr::Find", __LINE__);
    const wchar_t* const found = wcsstr(buffer + start, text);
    return found ? static_cast<int>(found - buffer) : -1;
}

int CStr::ReverseFind(wchar_t character) const
{
    int index = static_cast<int>(Length()); // the terminator can be looked for
    while (index >= 0 && buffer[index] != character) {
        index--;
    }
    return index;
}

wchar_t* CStr::AllocLeft(uint32_t n) const
{
    return NewCopy(buffer, n, L"CStr::AllocLeft", __LINE__);
}

wchar_t* CStr::AllocRight(uint32_t n) const
{
    const uint32_t length = Length();
    const uint32_t taken = n < length ? n : length;
    return NewCopy(buffer + length - taken, taken, L"CStr::AllocRight", __LINE__);
}

wchar_t* CStr::AllocMiddle(uint32_t position, uint32_t n) const
{
    Assert(position < Length(), ErrorOutOfRange, L"CStr::AllocMiddle", __LINE__);
    return NewCopy(buffer + position, n, L"CStr::AllocMiddle", __LINE__);
}

wchar_t* CStr::Duplicate(const wchar_t* text)
{
    return NewCopy(text, UINT32_MAX, L"CStr::Duplicate", __LINE__);
}

CStr CStr::Left(uint32_t n) const
{
    CStr part;
    part.Replace(AllocLeft(n));
    return part;
}

CStr CStr::Right(uint32_t n) const
{
    CStr part;
    part.Replace(AllocRight(n));
    return part;
}

CStr CStr::Mid(uint32_t position, uint32_t n) const
{
    CStr part;
    part.Replace(AllocMiddle(position, n));
    return part;
}
