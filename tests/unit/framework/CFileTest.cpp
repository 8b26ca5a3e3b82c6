// CFile: opening, reading and positioning, with and without fatal failures.
#include "framework/CFile.h"
#include "framework/CFileUtils.h"
#include "tests/support/Fatal.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TempFolder.h"

#include <memory>
#include <string>

class CFileTest : public testing::Test
{
  protected:
    TempFolder folder;
    const std::wstring path = folder.WriteFile(L"five.txt", {'a', 'b', 'c', 'd', 'e'});
    const std::wstring missing = folder.Path(L"missing.txt");
    CFile file{false};
    CFile fatal{true};
};

TEST_F(CFileTest, AMissingFileIsNotCreated)
{
    EXPECT_FALSE(file.Open(missing.c_str(), true, false));
    EXPECT_FALSE(file.Open(missing.c_str(), false, true));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(GetFileAttributesW(missing.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_FATAL(fatal.Open(missing.c_str(), true, false), L"CFile::Open", L"Error");
}

static struct
{
    DWORD access;
    DWORD sharing;
    DWORD disposition;
    DWORD attributes;
} opening;

static HANDLE WINAPI RecordOpening(const wchar_t*, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES*,
                                   DWORD disposition, DWORD attributes, HANDLE)
{
    opening = {access, sharing, disposition, attributes};
    return INVALID_HANDLE_VALUE;
}

TEST_F(CFileTest, OpenAsksForWhatItIsToldTo)
{
    const ImportHook hook("CreateFileW", RecordOpening);
    for (const bool readOnly : {true, false}) {
        for (const bool exclusive : {true, false}) {
            EXPECT_FALSE(file.Open(L"any", readOnly, exclusive));
            EXPECT_EQ(opening.access, readOnly ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE);
            EXPECT_EQ(opening.sharing, exclusive ? 0u : FILE_SHARE_READ | FILE_SHARE_WRITE);
            EXPECT_EQ(opening.disposition, static_cast<DWORD>(OPEN_EXISTING));
            EXPECT_EQ(opening.attributes, static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL));
        }
    }
}

TEST_F(CFileTest, AnExclusiveOpeningKeepsOthersOut)
{
    CFile second(false);
    ASSERT_TRUE(file.Open(path.c_str(), true, true));
    EXPECT_FALSE(second.Open(path.c_str(), true, false));
    file.Close();
    ASSERT_TRUE(file.Open(path.c_str(), false, false));
    EXPECT_TRUE(second.Open(path.c_str(), false, false));
}

TEST_F(CFileTest, OpeningAnOpenFileIsFatal)
{
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    EXPECT_FATAL(file.Open(path.c_str(), true, false), L"CFile::Open", L"Already in use");
}

TEST_F(CFileTest, AClosedFileCanBeOpenedAgainButNotClosed)
{
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    file.Close();
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FATAL(file.Close(), L"CFile::Close", L"Not in use");
    EXPECT_TRUE(file.Open(path.c_str(), true, false));
}

TEST_F(CFileTest, OperationsOnAClosedFileAreFatal)
{
    char buffer[8];
    uint32_t n = 1;
    EXPECT_FATAL(file.Size(), L"CFile::Size", L"Not in use");
    EXPECT_FATAL(file.ReadFixed(buffer, 1), L"CFile::ReadFixed", L"Not in use");
    EXPECT_FATAL(file.Read(buffer, &n), L"CFile::Read", L"Not in use");
    EXPECT_FATAL(file.SeekBegin(0), L"CFile::SeekBegin", L"Not in use");
}

TEST_F(CFileTest, TheDestructorCloses)
{
    {
        CFile scoped(false);
        ASSERT_TRUE(scoped.Open(path.c_str(), true, true));
    }
    EXPECT_TRUE(file.Open(path.c_str(), true, true));
}

static DWORD WINAPI FailSize(HANDLE, DWORD*)
{
    return INVALID_FILE_SIZE;
}

TEST_F(CFileTest, AFailingSizeIsFatalInBothModes)
{
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    ASSERT_TRUE(fatal.Open(path.c_str(), true, false));
    EXPECT_EQ(file.Size(), 5u);
    const ImportHook hook("GetFileSize", FailSize);
    EXPECT_FATAL(file.Size(), L"CFile::Size", L"Error");
    EXPECT_FATAL(fatal.Size(), L"CFile::Size", L"Error");
}

static DWORD WINAPI MoreThanFourGigabytes(HANDLE, DWORD* high)
{
    *high = 1;
    return 5;
}

TEST_F(CFileTest, AFileOfMoreThanFourGigabytesCanHoldWhatItsLowerHalfCannot)
{
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    const ImportHook hook("GetFileSize", MoreThanFourGigabytes);
    EXPECT_TRUE(file.CanHold(6, 1));
    EXPECT_TRUE(file.CanHold(0xFFFFFFFF, 0xFFFFFFFF));
}

TEST_F(CFileTest, CanHoldComparesWithoutOverflow)
{
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    EXPECT_TRUE(file.CanHold(0, 5));
    EXPECT_TRUE(file.CanHold(5, 0));
    EXPECT_FALSE(file.CanHold(0, 6));
    EXPECT_FALSE(file.CanHold(6, 0));
    EXPECT_FALSE(file.CanHold(2, 0xFFFFFFFF));
    const ImportHook hook("GetFileSize", FailSize);
    EXPECT_TRUE(file.CanHold(0, 6));
}

TEST_F(CFileTest, ReadFixedNeedsEveryByte)
{
    char buffer[8] = {};
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    EXPECT_FALSE(file.ReadFixed(buffer, 7));
    file.SeekBegin(0);
    EXPECT_TRUE(file.ReadFixed(buffer, 5));
    EXPECT_STREQ("abcde", buffer);
    EXPECT_FALSE(file.ReadFixed(buffer, 1));
    EXPECT_TRUE(file.ReadFixed(buffer, 0));
    ASSERT_TRUE(fatal.Open(path.c_str(), true, false));
    EXPECT_FATAL(fatal.ReadFixed(buffer, 7), L"CFile::ReadFixed", L"Error");
}

TEST_F(CFileTest, ReadTellsHowMuchCame)
{
    char buffer[8] = {};
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    uint32_t n = 7;
    EXPECT_TRUE(file.Read(buffer, &n));
    EXPECT_EQ(n, 5u);
    EXPECT_STREQ("abcde", buffer);
    n = 7;
    EXPECT_TRUE(file.Read(buffer, &n));
    EXPECT_EQ(n, 0u);
}

static BOOL WINAPI FailReading(HANDLE, void*, DWORD, DWORD* n, OVERLAPPED*)
{
    *n = 0;
    return FALSE;
}

TEST_F(CFileTest, AFailingReadIsFatalOnlyIfAskedFor)
{
    char buffer[8] = {'x'};
    uint32_t n = 4;
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    ASSERT_TRUE(fatal.Open(path.c_str(), true, false));
    const ImportHook hook("ReadFile", FailReading);
    EXPECT_FALSE(file.Read(buffer, &n));
    EXPECT_FALSE(file.ReadFixed(buffer, 0));
    EXPECT_FALSE(file.ReadText(buffer, 4));
    EXPECT_STREQ("", buffer);
    EXPECT_FATAL(fatal.Read(buffer, &n), L"CFile::Read", L"Error");
    EXPECT_FATAL(fatal.ReadFixed(buffer, 1), L"CFile::ReadFixed", L"Error");
}

TEST_F(CFileTest, TextIsTerminatedBehindWhatWasRead)
{
    char narrow[8];
    memset(narrow, 'x', sizeof(narrow));
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    EXPECT_TRUE(file.ReadText(narrow, 3));
    EXPECT_STREQ("abc", narrow);
    EXPECT_TRUE(file.ReadText(narrow, 7));
    EXPECT_STREQ("de", narrow);
    file.Close();

    const std::wstring wide = folder.WriteFile(L"wide.txt", {'a', 0, 'b', 0, 0x3F, 0x04, 'd', 0, 'e'});
    ASSERT_TRUE(file.Open(wide.c_str(), true, false));
    wchar_t text[8];
    wmemset(text, L'x', 8);
    EXPECT_TRUE(file.ReadText(text, 3));
    EXPECT_STREQ(L"ab\x043F", text);
    EXPECT_EQ(text[4], L'x');
    wmemset(text, L'x', 8);
    EXPECT_TRUE(file.ReadText(text, 7));
    EXPECT_STREQ(L"d", text); // the odd byte is no character
}

TEST_F(CFileTest, AFailingSeekIsFatalInBothModes)
{
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    char c = 0;
    file.SeekBegin(3);
    EXPECT_TRUE(file.ReadFixed(&c, 1));
    EXPECT_EQ(c, 'd');
    file.SeekBegin(0x7FFFFFFF); // behind the end is a legal place
    EXPECT_FALSE(file.ReadFixed(&c, 1));
    EXPECT_FATAL(file.SeekBegin(0x80000000), L"CFile::SeekBegin", L"Error");
    ASSERT_TRUE(fatal.Open(path.c_str(), true, false));
    EXPECT_FATAL(fatal.SeekBegin(0x80000000), L"CFile::SeekBegin", L"Error");
}

static DWORD error;

static DWORD WINAPI AnswerWithTheHighestPlace(HANDLE, LONG, LONG*, DWORD)
{
    SetLastError(error);
    return INVALID_SET_FILE_POINTER;
}

TEST_F(CFileTest, OnlyTheLastErrorTellsAFailingSeekFromTheHighestPlace)
{
    ASSERT_TRUE(file.Open(path.c_str(), true, false));
    const ImportHook hook("SetFilePointer", AnswerWithTheHighestPlace);
    error = NO_ERROR;
    file.SeekBegin(1);
    error = ERROR_INVALID_HANDLE;
    EXPECT_FATAL(file.SeekBegin(1), L"CFile::SeekBegin", L"Error");
}
