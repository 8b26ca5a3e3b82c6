// Passes what takes two words where the device's libraries would look for it elsewhere, in every way that the
// check has to see, and what takes one.
#include "framework/CStr.h"

#include <oleauto.h>

enum class Wide : int64_t
{
    Value
};

struct Variadic
{
    explicit Variadic(int count, ...);
    void Method(int count, ...);
};

using Function = void(int count, ...);

// Eleven calls are to be found.
void WideArguments(CStr& text, int64_t number, uint64_t positive, double real, float single, FILETIME time,
                   Function* function)
{
    text.Format(L"%I64d", number);
    text.Format(L"%s %I64u", L"behind another", positive);
    text.AppendFormat(L"%f", real);
    text.AppendFormat(L"%f", single); // passed as a double
    text.AppendFormat(L"%u", time);
    text.AppendFormat(L"%u", Wide::Value);
    const Variadic object(1, number);
    Variadic copy = object;
    copy.Method(1, real);
    void (Variadic::*method)(int, ...) = &Variadic::Method;
    (copy.*method)(1, number);
    function(1, real);
    VarUI8FromR8(real, &positive);

    text.Format(L"%d %u %s %p", 1, sizeof(text), L"text", &text);
    function(1, 2);
    copy.Method(1, text.Buffer());
}
