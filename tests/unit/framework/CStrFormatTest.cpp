// CStr: formatted text, numbers and string resources.
#include "framework/CStr.h"
#include "tests/support/Fatal.h"
#include "tests/unit/framework/strings.h"

#include <string>

TEST(CStrFormatTest, FormatReplacesTheText)
{
    CStr text(L"before");
    text.Format(L"%s has %d and %u, %08X, %c", L"wide", -5, 7u, 0xABCDu, L'x');
    EXPECT_STREQ(L"wide has -5 and 7, 0000ABCD, x", text);
    EXPECT_EQ(text.FixedSize(), 0u);
}

TEST(CStrFormatTest, ANullFormatEmpties)
{
    CStr dynamic(L"abc");
    dynamic.Format(nullptr);
    EXPECT_STREQ(L"", dynamic);
    CStr fixed(5);
    fixed = L"abc";
    const wchar_t* const before = fixed.Buffer();
    fixed.Format(nullptr);
    EXPECT_STREQ(L"", fixed);
    EXPECT_EQ(fixed.Buffer(), before);
    fixed = L"abc";
    fixed.AppendFormat(nullptr);
    EXPECT_STREQ(L"abc", fixed);
}

// Wherever it stands among the arguments, the string itself is no text, and nothing of it is seen while it is
// written.
TEST(CStrFormatTest, TheStringIsEmptyBeforeItIsFormatted)
{
    for (const uint32_t size : {0u, 8u, 300u}) {
        CStr text(size);
        text = L"abc";
        text.Format(L"[%s]", text.Buffer());
        EXPECT_STREQ(L"[]", text) << size;
        text = L"abc";
        text.Format(L"%s[%d%s]", text.Buffer(), 1, text.Buffer());
        EXPECT_STREQ(L"[1]", text) << size;
        text = L"abcdef";
        text.Format(L"[%s]", text.Buffer() + 2);
        EXPECT_STREQ(L"[]", text) << "a part of it, " << size;
        text = L"abcdef";
        text.Format(text);
        EXPECT_STREQ(L"", text) << size;
        EXPECT_EQ(text.FixedSize(), size);
    }
}

TEST(CStrFormatTest, ADynamicStringTakes256Characters)
{
    const std::wstring fits(256, L'x');
    CStr text;
    text.Format(L"%s", fits.c_str());
    EXPECT_STREQ(fits.c_str(), text);
    const std::wstring longer(257, L'x');
    EXPECT_FATAL(text.Format(L"%s", longer.c_str()), L"CStr::Format", L"Invalid value");
}

TEST(CStrFormatTest, AFixedStringTakesItsCapacity)
{
    CStr text(5);
    const wchar_t* const before = text.Buffer();
    text.Format(L"%s", L"abcde");
    EXPECT_STREQ(L"abcde", text);
    EXPECT_EQ(text.Buffer(), before);
    EXPECT_FATAL(text.Format(L"%s", L"abcdef"), L"CStr::Format", L"Invalid value");

    CStr large(300);
    const std::wstring fits(300, L'x');
    large.Format(L"%s", fits.c_str());
    EXPECT_STREQ(fits.c_str(), large);
}

TEST(CStrFormatTest, AppendFormatAppends)
{
    CStr text(L"a");
    text.AppendFormat(L"%d%s", 1, L"b");
    EXPECT_STREQ(L"a1b", text);
    const std::wstring fits(256, L'x');
    text.AppendFormat(L"%s", fits.c_str());
    EXPECT_EQ(text.Length(), 259u);
    text = L"s";
    text.AppendFormat(L"%s", text.Buffer());
    EXPECT_STREQ(L"ss", text);
    EXPECT_FATAL(text.AppendFormat(L"x%s", fits.c_str()), L"CStr::AppendFormat", L"Invalid value");
    CStr fixed(3);
    fixed = L"ab";
    EXPECT_FATAL(fixed.AppendFormat(L"%d", 10), L"CStr::Append", L"Buffer is too small");
}

TEST(CStrFormatTest, NumbersAtTheirLimits)
{
    CStr text;
    text.AppendInt(INT32_MIN);
    text.Append(L" ");
    text.AppendInt(0);
    text.Append(L" ");
    text.AppendUint(0xFFFFFFFF);
    text.Append(L" ");
    text.AppendHex(0xFFFFFFFF);
    text.Append(L" ");
    text.AppendHex(0xA0);
    EXPECT_STREQ(L"-2147483648 0 4294967295 FFFFFFFF A0", text);
    CStr wide;
    wide.AppendInt64(INT64_MIN);
    wide.Append(L" ");
    wide.AppendInt64(INT64_MAX);
    wide.Append(L" ");
    wide.AppendInt64(-1);
    wide.Append(L" ");
    wide.AppendInt64(0);
    EXPECT_STREQ(L"-9223372036854775808 9223372036854775807 -1 0", wide);
}

TEST(CStrFormatTest, ANumberThatDoesNotFitIsFatal)
{
    CStr text(3);
    text.AppendInt(999);
    EXPECT_STREQ(L"999", text);
    EXPECT_FATAL(text.AppendUint(1), L"CStr::Append", L"Buffer is too small");
    EXPECT_FATAL(text.AppendSize(1), L"CStr::Append", L"Buffer is too small");
}

TEST(CStrFormatTest, LoadStringTakesAStringOfTheModule)
{
    CStr dynamic;
    dynamic.LoadStringW(IDS_SHORT);
    EXPECT_STREQ(L"abcde", dynamic);
    EXPECT_EQ(dynamic.FixedSize(), 0u);
    CStr fixed(6);
    const wchar_t* const before = fixed.Buffer();
    fixed.LoadStringW(IDS_SHORT);
    EXPECT_STREQ(L"abcde", fixed);
    EXPECT_EQ(fixed.Buffer(), before);
}

// The platform counts the terminator into the limit, which is the fixed size.
TEST(CStrFormatTest, LoadStringCutsAtTheFixedSize)
{
    CStr fixed(4);
    fixed.LoadStringW(IDS_SHORT);
    EXPECT_STREQ(L"abc", fixed);
}

TEST(CStrFormatTest, LoadStringTakes255CharactersIntoADynamicString)
{
    CStr text;
    text.LoadStringW(IDS_LONG);
    EXPECT_EQ(text.Length(), 255u);
    EXPECT_STREQ(L"0123456789", text.Left(10));
}

TEST(CStrFormatTest, AMissingStringIsFatal)
{
    CStr dynamic;
    CStr fixed(10);
    EXPECT_FATAL(dynamic.LoadStringW(IDS_MISSING), L"CStr::LoadStringW", L"Not found");
    EXPECT_FATAL(fixed.LoadStringW(IDS_MISSING), L"CStr::LoadStringW", L"Not found");
}
