// Byte sizes and 64-bit numbers as text.
#include "framework/SizeText.h"
#include "framework/CStr.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <string>

static std::wstring Size(int64_t bytes)
{
    CStr text;
    text.AppendSize(bytes);
    return text.Buffer();
}

static const int64_t kilo = 1024;
static const int64_t mega = kilo * 1024;
static const int64_t giga = mega * 1024;
static const int64_t tera = giga * 1024;

TEST(SizeTextTest, KnownSizes)
{
    const struct
    {
        int64_t bytes;
        const wchar_t* text;
    } cases[] = {
        {0, L"0 B"},
        {1, L"1 B"},
        {1023, L"1023 B"},
        {1024, L"1 KB"},
        {1030, L"1.01 KB"},
        {1324, L"1.28 KB"},
        {1536, L"1.50 KB"},
        {mega - 1, L"1024 KB"},
        {mega, L"1 MB"},
        {giga - 1, L"1024 MB"},
        {giga, L"1 GB"},
        {tera - 1, L"1024 GB"},
        {tera, L"1 TB"},
        {5 * tera, L"5 TB"},
        {1024 * tera, L"1024 TB"},
        {0xFFFFFFFFLL, L"4 GB"},
        {INT64_MAX, L"8388608 TB"},
        {-1, L"-1 B"},
        {-155, L"-155 B"},
        {-1024, L"-1024 B"},
        {-5 * mega, L"-5242880 B"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(each.text, Size(each.bytes)) << each.bytes;
    }
}

// By integers: the hundredths are rounded, and three of them come out one too small, because 0.29, 0.57 and
// 0.58 times 100 are a little less than a whole number in double arithmetic.
static int HundredthsOf(int remainder)
{
    const int rounded = (remainder * 100 + 512) / 1024;
    return rounded == 29 || rounded == 57 || rounded == 58 ? rounded - 1 : rounded;
}

static std::wstring Expected(int64_t whole, int remainder, const wchar_t* unit)
{
    const int hundredths = HundredthsOf(remainder);
    if (hundredths == 100) {
        return std::to_wstring(whole + 1) + unit;
    }
    if (hundredths == 0) {
        return std::to_wstring(whole) + unit;
    }
    const std::wstring digits = std::to_wstring(100 + hundredths).substr(1);
    return std::to_wstring(whole) + L"." + digits + unit;
}

TEST(SizeTextTest, EveryRemainderInEveryUnit)
{
    const struct
    {
        int64_t size;
        const wchar_t* unit;
    } units[] = {{kilo, L" KB"}, {mega, L" MB"}, {giga, L" GB"}, {tera, L" TB"}};
    for (const auto& each : units) {
        for (int remainder = 0; remainder < 1024; remainder++) {
            const int64_t step = each.size / 1024;
            EXPECT_EQ(Expected(5, remainder, each.unit), Size(5 * each.size + remainder * step));
            // What lies below the last step has no influence.
            EXPECT_EQ(Expected(1023, remainder, each.unit),
                      Size(1023 * each.size + remainder * step + step - 1));
        }
    }
}

TEST(SizeTextTest, TheCutHundredthsAreKept)
{
    for (int64_t bytes = 1316; bytes <= 1326; bytes++) {
        EXPECT_EQ(L"1.28 KB", Size(bytes)) << bytes;
    }
    for (int64_t bytes = 1603; bytes <= 1612; bytes++) {
        EXPECT_EQ(L"1.56 KB", Size(bytes)) << bytes;
    }
    for (int64_t bytes = 1613; bytes <= 1623; bytes++) {
        EXPECT_EQ(L"1.57 KB", Size(bytes)) << bytes;
    }
    EXPECT_EQ(L"1.30 KB", Size(1327));
    EXPECT_EQ(L"1.59 KB", Size(1624));
}

TEST(SizeTextTest, ACommaLocaleChangesNothing)
{
    ASSERT_NE(setlocale(LC_ALL, "German_Germany.1252"), nullptr);
    wchar_t proof[20];
    _snwprintf(proof, 20, L"%.1f", 1.5);
    EXPECT_STREQ(L"1,5", proof);
    EXPECT_EQ(L"1.50 KB", Size(1536));
    EXPECT_EQ(L"1023 KB", Size(1023 * kilo));
    CStr number;
    number.AppendInt64(1234567);
    EXPECT_STREQ(L"1234567", number);
    setlocale(LC_ALL, "C");
}

TEST(SizeTextTest, HalfwayCasesRoundAwayFromZero)
{
    EXPECT_EQ(RoundToDigits(0.125, 2), 0.13);
    EXPECT_EQ(RoundToDigits(-0.125, 2), -0.13);
    EXPECT_EQ(RoundToDigits(2.5, 0), 3.0);
    EXPECT_EQ(RoundToDigits(-2.5, 0), -3.0);
    EXPECT_EQ(RoundToDigits(7.0, 2), 7.0);
    EXPECT_EQ(RoundToDigits(0.0, 2), 0.0);
    EXPECT_EQ(RoundToDigits(12.3449, 2), 12.34);
    EXPECT_EQ(RoundToDigits(1023.0 / 1024, 2), 1.0);
}
