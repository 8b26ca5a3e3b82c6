// Passes what takes two words through "...", in every way that the check has to see, and what takes one.
#include "framework/CStr.h"

void WideArguments(CStr& text, int64_t number, uint64_t positive, double real, float single, FILETIME time)
{
    text.Format(L"%I64d", number);
    text.Format(L"%s %I64u", L"behind another", positive);
    text.AppendFormat(L"%f", real);
    text.AppendFormat(L"%f", single); // passed as a double
    text.AppendFormat(L"%u", time);
    text.Format(L"%d %u %s %p", 1, sizeof(text), L"text", &text);
}
