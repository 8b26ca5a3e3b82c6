// The report on a shortcut, letter for letter, over real files.
#include "pages/start/ShortcutReport.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestHeap.h"

#include <gtest/gtest.h>

static constexpr const wchar_t* heading = L"\r\n\r\nLNK file contents:\r\n";

static BOOL WINAPI RefuseToRead(HANDLE, void*, DWORD, DWORD* got, OVERLAPPED*)
{
    *got = 0;
    return FALSE;
}

class ShortcutReportTest : public testing::Test
{
  protected:
    TempFolder folder;
    SAppsList program;

    ShortcutReportTest()
    {
        program.name = L"Calc & 100%";
        program.target = L"\"\\Windows\\calc.exe\" %1 -x";
    }

    std::wstring Report() const
    {
        CStr report;
        AppendShortcutReport(report, program);
        return report.Buffer();
    }

    // What follows the heading in the report on a file of these bytes.
    std::wstring Contents(const std::vector<unsigned char>& bytes)
    {
        program.path = folder.WriteFile(L"c.lnk", bytes).c_str();
        const std::wstring report = Report();
        const size_t found = report.find(heading);
        EXPECT_NE(found, std::wstring::npos);
        return found == std::wstring::npos ? L"" : report.substr(found + wcslen(heading));
    }

    static std::vector<unsigned char> Bytes(const std::string& text) { return {text.begin(), text.end()}; }
};

TEST_F(ShortcutReportTest, NamePathsAndContents)
{
    const std::wstring path = folder.WriteFile(L"Calc.lnk", Bytes("18#\"\\Windows\\calc.exe\" %1 -x"));
    program.path = path.c_str();
    EXPECT_EQ(Report(), L"Name: Calc & 100%\r\nExecuteable: " + path +
                            L"\r\nTarget: \"\\Windows\\calc.exe\" %1 -x\r\n\r\nLNK file contents:\r\n"
                            L"18#\"\\Windows\\calc.exe\" %1 -x");
}

TEST_F(ShortcutReportTest, AFileThatIsGoneHasNoContentsNorAHeading)
{
    const std::wstring path = folder.Path(L"gone.lnk");
    program.path = path.c_str();
    EXPECT_EQ(Report(),
              L"Name: Calc & 100%\r\nExecuteable: " + path + L"\r\nTarget: \"\\Windows\\calc.exe\" %1 -x");
}

TEST_F(ShortcutReportTest, EmptyFactsAreEmpty)
{
    program.name = program.path = program.target = L"";
    EXPECT_EQ(Report(), L"Name: \r\nExecuteable: \r\nTarget: ");
}

TEST_F(ShortcutReportTest, AnEmptyFileHasOnlyTheHeading)
{
    EXPECT_EQ(Contents({}), L"");
}

TEST_F(ShortcutReportTest, TheContentsEndAtTheFirstZero)
{
    EXPECT_EQ(Contents({'a', 'b', 0, 'c', 0}), L"ab");
    EXPECT_EQ(Contents({0, 'c'}), L"");
    EXPECT_EQ(Contents({'L', 0, 0, 0, 1, 0x14, 2, 0}), L"L");
}

TEST_F(ShortcutReportTest, ContentsAreShownAsTheyAre)
{
    EXPECT_EQ(Contents(Bytes("[x]\r\n%s%n &\t\x7F")), L"[x]\r\n%s%n &\t\x7F");
    EXPECT_EQ(Contents({0xE9}), L"\xE9") << "the code page of the program's narrow texts";
}

TEST_F(ShortcutReportTest, AMegabyteIsShownWhole)
{
    const std::wstring contents = Contents(std::vector<unsigned char>(1048576, 'x'));
    EXPECT_EQ(contents.size(), 1048576u);
    EXPECT_EQ(contents.find_first_not_of(L'x'), std::wstring::npos);
}

TEST_F(ShortcutReportTest, AFileThatCannotBeReadHasOnlyTheHeading)
{
    program.path = folder.WriteFile(L"c.lnk", Bytes("abc")).c_str();
    const ImportHook read("ReadFile", RefuseToRead);
    EXPECT_TRUE(Report().ends_with(heading));
}

TEST_F(ShortcutReportTest, TheFileIsOnlyReadAndOthersMayHaveItOpen)
{
    program.path = folder.WriteFile(L"c.lnk", Bytes("abc")).c_str();
    HANDLE other = CreateFileW(program.path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                               OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(Report().ends_with(L"abc"));
    CloseHandle(other);
}

TEST_F(ShortcutReportTest, NothingStaysBehind)
{
    program.path = folder.WriteFile(L"c.lnk", Bytes("abc")).c_str();
    Report();
    const size_t blocks = LiveBlocks();
    {
        CStr report;
        AppendShortcutReport(report, program);
    }
    EXPECT_EQ(LiveBlocks(), blocks);
    EXPECT_TRUE(DeleteFileW(program.path)) << "the file is closed";
    EXPECT_EQ(GetFileAttributesW(program.path), INVALID_FILE_ATTRIBUTES);
}

TEST_F(ShortcutReportTest, ItIsAppended)
{
    CStr report(L"before ");
    AppendShortcutReport(report, program);
    EXPECT_EQ(std::wstring(report).find(L"before Name: "), 0u);
}
