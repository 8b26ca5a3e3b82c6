// The lines of the text reports.
#pragma once

#include "framework/CStr.h"

// A label, with the line breaks in front of it and the blank behind it, and its value.
inline void AppendLabelled(CStr& report, const wchar_t* label, const wchar_t* value)
{
    report.Append(label);
    report.Append(value);
}

inline void AppendLabelledHex(CStr& report, const wchar_t* label, uint32_t value)
{
    report.Append(label);
    report.AppendHex(value);
}

// A size in bytes.
inline void AppendLabelledSize(CStr& report, const wchar_t* label, int64_t bytes)
{
    report.Append(label);
    report.AppendSize(bytes);
}
