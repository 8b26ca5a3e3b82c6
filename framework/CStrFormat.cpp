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
    // Emptied first, but the old buffer stays until the end: the string itself may be among the arguments.
    buffer[0] = 0;
    if (!format) {
        Empty();
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    if (fixedSize) {
        FormatInto(buffer, fixedSize, format, arguments, L"CStr::Format", __LINE__);
    } else {
        wchar_t scratch[scratchSize + 1];
        FormatInto(scratch, scratchSize, format, arguments, L"CStr::Format", __LINE__);
        Replace(NewCopy(scratch, scratchSize, L"CStr::Format", __LINE__));
    }
    va_end(arguments);
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
