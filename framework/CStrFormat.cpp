// CStr: formatted text, string resources and numbers.
#include "framework/Assert.h"
#include "framework/CStr.h"
#include "framework/SizeText.h"

static const uint32_t scratchSize = 256;

// Output of exactly `limit` characters is accepted, though the platform then writes no terminator.
static void FormatInto(wchar_t* target, uint32_t limit, const wchar_t* format, va_list arguments,
                       const wchar_t* function, int line)
{
    const int written = _vsnwprintf(target, limit, format, arguments);
    Assert(written >= 0, ErrorInvalidValue, function, line);
    target[limit] = 0;
}

void CStr::Format(const wchar_t* format, ...)
{
    // Emptied first, and written only at the end: the string or a part of it may be among the arguments, and
    // then stands for no text.
    memset(buffer, 0, Length() * sizeof(wchar_t));
    if (!format) {
        Empty();
        return;
    }
    wchar_t scratch[scratchSize + 1];
    const uint32_t limit = fixedSize ? fixedSize : scratchSize;
    wchar_t* const target = limit <= scratchSize ? scratch : NewBuffer(limit, L"CStr::Format", __LINE__);
    va_list arguments;
    va_start(arguments, format);
    FormatInto(target, limit, format, arguments, L"CStr::Format", __LINE__);
    va_end(arguments);
    Set(target, limit, L"CStr::Format", __LINE__);
    if (target != scratch) {
        delete[] target;
    }
}

void CStr::AppendFormat(const wchar_t* format, ...)
{
    if (!format) {
        return;
    }
    wchar_t scratch[scratchSize + 1];
    va_list arguments;
    va_start(arguments, format);
    FormatInto(scratch, scratchSize, format, arguments, L"CStr::AppendFormat", __LINE__);
    va_end(arguments);
    Append(scratch);
}

void CStr::LoadStringW(uint32_t id)
{
    wchar_t scratch[scratchSize];
    wchar_t* const target = fixedSize ? buffer : scratch;
    const uint32_t limit = fixedSize ? fixedSize : scratchSize; // terminator included
    const int length = ::LoadStringW(GetModuleHandleW(nullptr), id, target, static_cast<int>(limit));
    Assert(length > 0, ErrorNotFound, L"CStr::LoadStringW", __LINE__);
    if (!fixedSize) {
        *this = scratch;
    }
}

void CStr::AppendInt(int32_t value)
{
    CStr text(25);
    text.Format(L"%d", value);
    Append(text);
}

void CStr::AppendUint(uint32_t value)
{
    CStr text(25);
    text.Format(L"%u", value);
    Append(text);
}

void CStr::AppendHex(uint32_t value)
{
    CStr text(50);
    text.Format(L"%X", value);
    Append(text);
}

void CStr::AppendInt64(int64_t value)
{
    CStr text(numberTextSize);
    Int64Text(text.Buffer(), value);
    Append(text);
}

void CStr::AppendSize(int64_t bytes)
{
    wchar_t text[numberTextSize];
    SizeText(text, bytes);
    Append(text);
}
