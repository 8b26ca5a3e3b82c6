// Texts, numbers in them, and sorting.
#include "tests/device/bridges/Hidden.h"
#include "tests/device/bridges/Served.h"

static int Format(wchar_t* text, size_t room, const wchar_t* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int length = _vsnwprintf(text, room, format, arguments);
    va_end(arguments);
    return length;
}

void AskTexts()
{
    wchar_t text[16];
    Expect(Format(text, 16, L"%d %s", -5, L"abc") == 6 && _wcsicmp(text, L"-5 ABC") == 0);
    Expect(_wtol(Hidden(L" -12x")) == -12);
    Expect(wcsstr(text, L"ab") == text + 3 && wcsstr(text, L"x") == nullptr);
    Expect(wcslen(Hidden(text)) == 6);
    _wcslwr(wcsncpy(text, L"QUORVANE", 16));
    Expect(memcmp(text, L"quorvane", 18) == 0 && text[15] == 0);
    Expect(MultiByteToWideChar(CP_ACP, 0, "seven", -1, text, 16) == 6 && _wcsicmp(text, L"Seven") == 0);
}

static int CompareNumbers(const void* first, const void* second)
{
    return *static_cast<const int*>(first) - *static_cast<const int*>(second);
}

void AskSorting()
{
    int numbers[100];
    for (int i = 0; i < 100; i++) {
        numbers[i] = i * 37 % 100; // each once
    }
    qsort(numbers, 100, sizeof *numbers, CompareNumbers);
    bool isSorted = true;
    for (int i = 0; i < 100; i++) {
        isSorted = isSorted && numbers[i] == i;
    }
    Expect(isSorted);
}
