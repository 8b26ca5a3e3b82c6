// CPathText: what the platform writes is always a terminated text.
#include "framework/PathText.h"

#include <gtest/gtest.h>

#include <string>

static std::wstring Read(CPathText& path)
{
    const wchar_t* text = path;
    return text;
}

TEST(PathTextTest, ItIsEmptyUntilItIsWritten)
{
    CPathText path;
    EXPECT_EQ(Read(path), L"");
}

TEST(PathTextTest, ItHoldsWhatWasWritten)
{
    CPathText path;
    wcscpy(path.Room(), L"\\Windows\\a.exe");
    EXPECT_EQ(Read(path), L"\\Windows\\a.exe");
    EXPECT_EQ(static_cast<const wchar_t*>(path), path.Room());
}

TEST(PathTextTest, ARoomFilledToItsEndGives259Characters)
{
    static_assert(pathSize == 260 && sizeof(CPathText) == 260 * sizeof(wchar_t));
    CPathText path;
    wmemset(path.Room(), L'x', pathSize);
    EXPECT_EQ(Read(path), std::wstring(259, L'x'));
    wmemset(path.Room(), L'y', pathSize); // and again after it was read
    EXPECT_EQ(Read(path), std::wstring(259, L'y'));
}
