// Numbers as text, where the platform's formatter cannot be used.
#include "framework/SizeText.h"

void Int64Text(wchar_t* buffer, int64_t value)
{
    wchar_t reversed[20];
    uint32_t digits = 0;
    // Unsigned, so that the smallest value has its magnitude too.
    uint64_t rest = value < 0 ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
    do {
        reversed[digits++] = static_cast<wchar_t>(L'0' + rest % 10);
        rest /= 10;
    } while (rest);

    if (value < 0) {
        *buffer++ = L'-';
    }
    while (digits) {
        *buffer++ = reversed[--digits];
    }
    *buffer = 0;
}

double RoundToDigits(double value, int digits)
{
    const double sign = value < 0 ? -1.0 : 1.0;
    double power = 1.0;
    for (int i = 0; i < digits; i++) {
        power *= 10.0;
    }
    const double whole = static_cast<double>(static_cast<int64_t>(value));
    const double scaled = (value - whole) * power + sign * 0.5;
    return static_cast<double>(static_cast<int64_t>(scaled)) / power + whole;
}

void SizeText(wchar_t* buffer, int64_t bytes)
{
    static const wchar_t* const units[] = {L" B", L" KB", L" MB", L" GB", L" TB"};
    uint32_t unit = 0;
    uint32_t previous = 0; // the value before its last step
    int64_t value = bytes;
    while (unit < 4 && value >= 1024) {
        previous = static_cast<uint32_t>(value);
        value >>= 10;
        unit++;
    }

    // Cut, not rounded, on purpose: 0.29 * 100.0 is a little less than 29, so 300/1024 shows as 28.
    const double rounded = RoundToDigits((previous & 1023) / 1024.0, 2);
    int hundredths = static_cast<int>(rounded * 100.0);
    if (hundredths == 100) {
        hundredths = 0;
        value++; // may read 1024 of a unit; the next unit is not taken for it
    }

    Int64Text(buffer, value);
    buffer += wcslen(buffer);
    if (hundredths) {
        *buffer++ = L'.';
        *buffer++ = static_cast<wchar_t>(L'0' + hundredths / 10);
        *buffer++ = static_cast<wchar_t>(L'0' + hundredths % 10);
    }
    memcpy(buffer, units[unit], (wcslen(units[unit]) + 1) * sizeof(wchar_t));
}
