// What a shortcut starts, as the ceshell substitute tells it.
#include "platform/ce.h"
#include "tests/unit/platform/LinkFile.h"

#include <gtest/gtest.h>

class ShortcutTargetTest : public testing::Test
{
  protected:
    TempFolder folder;

    static constexpr const wchar_t* unknown = L"(unknown)";

    static std::wstring Target(const std::wstring& shortcut)
    {
        wchar_t target[MAX_PATH] = L"?";
        return SHGetShortcutTarget(shortcut.c_str(), target, MAX_PATH) ? target : unknown;
    }

    std::wstring TargetOf(const std::string& bytes) const
    {
        return Target(folder.WriteFile(L"raw.lnk", {bytes.begin(), bytes.end()}));
    }
};

TEST_F(ShortcutTargetTest, ATextLinkIsToldAsItStands)
{
    EXPECT_EQ(Target(WriteTextLink(folder, L"a.lnk", "\"\\Windows\\x.exe\" -args")),
              L"\"\\Windows\\x.exe\" -args");
    EXPECT_EQ(Target(WriteTextLink(folder, L"b.lnk", "\\Windows\\x.exe")), L"\\Windows\\x.exe");
    EXPECT_EQ(TargetOf("9#a.exe\r\nmore"), L"a.exe");
}

TEST_F(ShortcutTargetTest, ALinkOfThePcHasItsArgumentsBehindIt)
{
    EXPECT_EQ(Target(WritePcLink(folder, L"a.lnk", L"C:\\windows\\notepad.exe")),
              L"C:\\windows\\notepad.exe");
    EXPECT_EQ(Target(WritePcLink(folder, L"b.lnk", L"C:\\windows\\notepad.exe", L"-x \"y z\"")),
              L"C:\\windows\\notepad.exe -x \"y z\"");
    const std::wstring blanks = folder.WriteFile(L"a b.exe", {});
    EXPECT_EQ(Target(WritePcLink(folder, L"c.lnk", blanks.c_str(), L"-x")), L"\"" + blanks + L"\" -x");
}

TEST_F(ShortcutTargetTest, WhatIsNoLinkIsUnknown)
{
    EXPECT_EQ(Target(folder.Path(L"none.lnk")), unknown);
    EXPECT_EQ(Target(folder.Folder()), unknown);
    EXPECT_EQ(TargetOf(""), unknown);
    EXPECT_EQ(TargetOf("12"), unknown);
    EXPECT_EQ(TargetOf("0#"), unknown);
    EXPECT_EQ(TargetOf("0#\"\""), unknown);
    EXPECT_EQ(TargetOf("no number#a.exe"), unknown);
    EXPECT_EQ(TargetOf(std::string("\0#a.exe", 7)), unknown);
}

TEST_F(ShortcutTargetTest, AZeroEndsTheText)
{
    EXPECT_EQ(TargetOf(std::string("9#\\a.exe\0\0-x", 12)), L"\\a.exe");
    EXPECT_EQ(TargetOf(std::string("9#\0\\a.exe", 9)), unknown);
}

TEST_F(ShortcutTargetTest, AMegabyteIsReadUpToTheRoom)
{
    const std::string digits(1 << 20, '7');
    EXPECT_EQ(TargetOf(digits), unknown);
    EXPECT_EQ(TargetOf("7#" + digits), std::wstring(259, L'7'));
    EXPECT_EQ(TargetOf(std::string(1 << 20, '\0')), unknown);
}

TEST_F(ShortcutTargetTest, ALongTargetIsCutToTheRoom)
{
    for (const size_t length : {259u, 260u, 300u}) {
        const std::string target = "\\" + std::string(length - 1, 'x');
        const std::wstring kept = (L"\\" + std::wstring(length - 1, L'x')).substr(0, 259);
        EXPECT_EQ(Target(WriteTextLink(folder, L"long.lnk", target)), kept) << length;
    }
    wchar_t small[] = L"????????";
    const std::wstring link = WriteTextLink(folder, L"a.lnk", "\\Windows\\x.exe");
    EXPECT_TRUE(SHGetShortcutTarget(link.c_str(), small, 5));
    EXPECT_EQ(std::wstring(small, 8), std::wstring(L"\\Win\0???", 8));
}

TEST_F(ShortcutTargetTest, ATruncatedLinkOfThePcIsSafe)
{
    const std::wstring whole = WritePcLink(folder, L"a.lnk", L"C:\\windows\\notepad.exe", L"-x");
    std::vector<unsigned char> bytes(4096);
    FILE* const file = _wfopen(whole.c_str(), L"rb");
    ASSERT_NE(file, nullptr);
    bytes.resize(fread(bytes.data(), 1, bytes.size(), file));
    fclose(file);
    ASSERT_GT(bytes.size(), 76u);
    for (size_t size = 0; size <= 76; size++) {
        EXPECT_EQ(
            Target(folder.WriteFile(L"cut.lnk", {bytes.begin(), bytes.begin() + static_cast<int>(size)})),
            unknown)
            << size;
    }
    // Behind its header anything may be missing; what is told then is told whole or not at all.
    for (size_t size = 77; size < bytes.size(); size += 13) {
        wchar_t target[MAX_PATH] = {};
        const std::wstring cut =
            folder.WriteFile(L"cut.lnk", {bytes.begin(), bytes.begin() + static_cast<int>(size)});
        const BOOL told = SHGetShortcutTarget(cut.c_str(), target, MAX_PATH);
        EXPECT_EQ(told != FALSE, target[0] != L'\0') << size;
    }
}

TEST_F(ShortcutTargetTest, WithoutRoomNothingIsWritten)
{
    wchar_t target[] = L"?";
    const std::wstring link = WriteTextLink(folder, L"a.lnk", "\\x.exe");
    EXPECT_FALSE(SHGetShortcutTarget(link.c_str(), target, 0));
    EXPECT_FALSE(SHGetShortcutTarget(link.c_str(), target, -1));
    EXPECT_FALSE(SHGetShortcutTarget(link.c_str(), nullptr, MAX_PATH));
    EXPECT_FALSE(SHGetShortcutTarget(nullptr, target, 2));
    EXPECT_STREQ(target, L"?");
}
