// Numbers as text, where the platform's formatter cannot be used: 64-bit values and byte sizes.
#pragma once

#include "platform/ce.h"

const uint32_t numberTextSize = 70; // characters of the buffers, terminator included

// The value as "%I64d" prints it. Formatted here because the platform may take 64-bit arguments of "..." from
// other places than the compiler puts them.
void Int64Text(wchar_t* buffer, int64_t value);

// "1.50 KB": steps of 1024 up to TB, two decimals cut from the rounded fraction, negative values in bytes.
void SizeText(wchar_t* buffer, int64_t bytes);

// The value rounded to so many decimals, half-way cases away from zero.
double RoundToDigits(double value, int digits);
