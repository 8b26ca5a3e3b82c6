// Narrow text assigned to a string: by which code page, and what happens without a conversion.
#include "framework/CStr.h"
#include "tests/support/Fatal.h"
#include "tests/support/ImportHook.h"

#include <vector>

static std::vector<UINT> pages;

// A code page in which every letter is the next one.
static int WINAPI NextLetters(UINT page, DWORD, const char* text, int, wchar_t* wide, int size)
{
    pages.push_back(page);
    const int needed = static_cast<int>(strlen(text)) + 1;
    for (int i = 0; i < needed && i < size; i++) {
        wide[i] = text[i] ? static_cast<wchar_t>(text[i] + 1) : L'\0';
    }
    return needed;
}

static int WINAPI Refuse(UINT, DWORD, const char*, int, wchar_t*, int)
{
    return 0;
}

TEST(NarrowAssignmentTest, TheActiveAnsiCodePageConverts)
{
    const ImportHook hook("MultiByteToWideChar", NextLetters);
    pages.clear();
    CStr text(5);
    const wchar_t* const before = text.Buffer();
    text = "HAL";
    EXPECT_STREQ(L"IBM", text);
    EXPECT_EQ(text.Buffer(), before);
    ASSERT_FALSE(pages.empty());
    for (const UINT page : pages) {
        EXPECT_EQ(page, static_cast<UINT>(CP_ACP));
    }
}

TEST(NarrowAssignmentTest, ARefusedConversionIsFatal)
{
    CStr text(L"before");
    EXPECT_FATAL(
        {
            const ImportHook hook("MultiByteToWideChar", Refuse);
            text = "x";
        },
        L"CStr::operator =", L"Error");
}
