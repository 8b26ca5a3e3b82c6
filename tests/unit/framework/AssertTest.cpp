// The fatal assertion: its texts, its box and how the process ends.
#include "framework/Assert.h"
#include "tests/support/Fatal.h"
#include "tests/support/ImportHook.h"

#include <cstdio>
#include <string>

TEST(AssertTest, EveryCodeHasItsText)
{
    const wchar_t* const texts[] = {L"Error",           L"Not found",           L"Not enough memory",
                                    L"Invalid value",   L"Buffer is too small", L"Out of range",
                                    L"Undefined state", L"Not in use",          L"Already in use"};
    for (uint32_t code = 0; code < 9; code++) {
        wchar_t buffer[errorTextSize];
        EXPECT_EQ(ErrorText(buffer, code), buffer);
        EXPECT_STREQ(texts[code], buffer) << code;
    }
}

TEST(AssertTest, AnyOtherCodeHasAnUnknownReason)
{
    for (const uint32_t code : {9u, 42u, 0x80000000u, 0xFFFFFFFFu}) {
        wchar_t buffer[errorTextSize];
        EXPECT_STREQ(L"Unknown reason", ErrorText(buffer, code)) << code;
    }
}

TEST(AssertTest, AConditionThatHoldsHasNoEffect)
{
    Assert(true, ErrorGeneric, L"CStr::Append", 1);
    AssertText(true, L"Error creating view wnd", L"CVireoView::BaseConstruct", 1);
}

TEST(AssertTest, AFailedConditionShowsFunctionLineAndReasonAndEndsTheProcess)
{
    EXPECT_FATAL_AT(Assert(false, ErrorOutOfRange, L"CStr::At", 17), L"CStr::At", 17, L"Out of range");
    EXPECT_FATAL_AT(Assert(false, 42, L"CApp::OnCreate", 2000000000), L"CApp::OnCreate", 2000000000,
                    L"Unknown reason");
}

TEST(AssertTest, AReasonOfItsOwnIsShown)
{
    EXPECT_FATAL_AT(AssertText(false, L"Error creating view wnd", L"CVireoView::BaseConstruct", 9),
                    L"CVireoView::BaseConstruct", 9, L"Error creating view wnd");
    EXPECT_FATAL_AT(AssertText(false, L"Error opening ZRS resource", L"CApp::OnCreate", 3), L"CApp::OnCreate",
                    3, L"Error opening ZRS resource");
}

// The fixed part of the text, with a function of one character and a one-digit line.
static const wchar_t fixedPart[] = L"Assertion failed in function: f()\nLine: 1\n\nReason: ";

TEST(AssertTest, ATextOf299CharactersIsWholeAndALongerOneIsCut)
{
    const std::wstring fits(299 - wcslen(fixedPart), L'x');
    EXPECT_FATAL_AT(AssertText(false, fits.c_str(), L"f", 1), L"f", 1, fits.c_str());
    EXPECT_FATAL_AT(AssertText(false, (fits + L"yz").c_str(), L"f", 1), L"f", 1, fits.c_str());
    const std::wstring huge(5000, L'x');
    EXPECT_FATAL_AT(AssertText(false, huge.c_str(), L"f", 1), L"f", 1, fits.c_str());
}

// As the platform's, and what it leaves behind the limit is not zero.
using Formatter = int(wchar_t*, size_t, const wchar_t*, va_list);
static Formatter* original;

static int FormatOverGarbage(wchar_t* buffer, size_t limit, const wchar_t* format, va_list arguments)
{
    wmemset(buffer, L'!', limit + 1);
    return original(buffer, limit, format, arguments);
}

TEST(AssertTest, ACutTextIsTerminated)
{
    const std::wstring fits(299 - wcslen(fixedPart), L'x');
    EXPECT_FATAL_AT(
        {
            const ImportHook hook("_vsnwprintf", FormatOverGarbage);
            original = hook.Original<Formatter>();
            AssertText(false, (fits + L"yz").c_str(), L"f", 1);
        },
        L"f", 1, fits.c_str());
}

// Stands in for the box and tells how it was called.
static int WINAPI DescribeBox(HWND owner, const wchar_t*, const wchar_t* caption, UINT style)
{
    fprintf(stderr, "owner %p caption %ls style %u\n", static_cast<void*>(owner), caption, style);
    return IDOK;
}

TEST(AssertTest, TheBoxHasNoOwnerAndTheErrorIcon)
{
    EXPECT_EXIT(
        {
            const ImportHook box("MessageBoxW", DescribeBox);
            Assert(false, ErrorGeneric, L"f", 1);
        },
        testing::ExitedWithCode(-1), "^owner 0+ caption Fatal error style 16\r?\n$");
}

static int WINAPI FailInsideBox(HWND, const wchar_t*, const wchar_t*, UINT)
{
    fprintf(stderr, "box\n");
    Assert(false, ErrorGeneric, L"g", 2);
    fprintf(stderr, "box goes on\n");
    return IDOK;
}

TEST(AssertTest, AFailureInsideTheBoxEndsTheProcessWithoutAnotherBox)
{
    EXPECT_EXIT(
        {
            const ImportHook box("MessageBoxW", FailInsideBox);
            Assert(false, ErrorGeneric, L"f", 1);
        },
        testing::ExitedWithCode(-1), "^box\r?\n$");
}

struct TellsItsEnd
{
    ~TellsItsEnd() { fprintf(stderr, "destructor\n"); }
};

TEST(AssertTest, NoDestructorRuns)
{
    EXPECT_FATAL(
        {
            const TellsItsEnd object;
            Assert(false, ErrorGeneric, L"f", 1);
        },
        L"f", L"Error");
}
