// The picture file: a spoilt one ends the start with a report, an incomplete one does not.
#include "rig/ProgramCopy.h"
#include "tests/e2e/PictureFile.h"
#include "tests/e2e/ShellSession.h"

#include <regex>

using namespace rig;

class FaultContainerTest : public ShellSession
{
  protected:
    ProgramCopy copy;

    void SetUp() override { ASSERT_TRUE(copy.Complete()); }

    std::wstring Pictures() const { return copy.Path(L"Quorvane.zrs"); }

    Bytes GoodFile() const { return ReadBytes(Pictures()); }

    void ExpectFatal()
    {
        StartProgram(L"", copy.Folder());
        const HWND box = program->WaitForDialog();
        ASSERT_TRUE(box) << "no report is shown";
        EXPECT_EQ(L"Fatal error", TextOf(box));
        const std::wregex expected(
            L"Assertion failed in function: CApp::OnCreate\\(\\)\nLine: [1-9][0-9]*\n\n"
            L"Reason: Error opening ZRS resource");
        EXPECT_TRUE(std::regex_match(BoxText(box), expected)) << testing::PrintToString(BoxText(box));
        EXPECT_EQ(nullptr, GetWindow(box, GW_OWNER));
        ASSERT_TRUE(InFront(box));
        PressKey(VK_RETURN);
        ExpectEnd(0xFFFFFFFF);
    }

    void ExpectFatal(const Bytes& bytes)
    {
        ASSERT_TRUE(WriteBytes(Pictures(), bytes));
        ExpectFatal();
    }

    void ExpectNormalStart(const Bytes& bytes)
    {
        ASSERT_TRUE(WriteBytes(Pictures(), bytes));
        Launch(L"", copy.Folder());
        ASSERT_TRUE(main);
        ASSERT_TRUE(InFront(main));
        ExpectKeysReachThePage(TasksPage);
        EXPECT_FALSE(program->Dialog());
    }

    // Every page can be shown, though their pictures are not there.
    void ExpectAllPagesWork()
    {
        for (int page : {LauncherPage, SysInfoPage, ProcsPage, TasksPage}) {
            PressKey(VK_RIGHT);
            EXPECT_TRUE(program->WaitForPage(page));
        }
        Send(main, WM_NULL);
        EXPECT_FALSE(program->Dialog());
        program->Command(ExitCommand);
        ExpectEnd();
    }
};

TEST_F(FaultContainerTest, ItsCopyStartsAtAll)
{
    ExpectNormalStart(GoodFile());
    ExpectAllPagesWork();
}

TEST_F(FaultContainerTest, AMissingFile)
{
    ASSERT_TRUE(DeleteFileW(Pictures().c_str()));
    ExpectFatal();
}

TEST_F(FaultContainerTest, AFolderInItsPlace)
{
    ASSERT_TRUE(DeleteFileW(Pictures().c_str()));
    ASSERT_TRUE(CreateDirectoryW(Pictures().c_str(), nullptr));
    ExpectFatal();
}

TEST_F(FaultContainerTest, AnEmptyFile)
{
    ExpectFatal({});
}

TEST_F(FaultContainerTest, AFileCutOffInItsHead)
{
    Bytes head = PictureFileHead(0);
    ASSERT_EQ(27u, head.size());
    for (size_t length : {6u, 7u, 10u, 26u}) {
        SCOPED_TRACE(length);
        ExpectFatal(Bytes(head.begin(), head.begin() + static_cast<int>(length)));
    }
}

TEST_F(FaultContainerTest, AFileCutOffInItsDirectory)
{
    Bytes bytes = GoodFile();
    ASSERT_GT(bytes.size(), 27u + 20u);
    const size_t entries = bytes[23];
    bytes.resize(27 + 20 * entries - 1);
    ExpectFatal(bytes);
}

TEST_F(FaultContainerTest, AWrongMagic)
{
    Bytes bytes = GoodFile();
    bytes[0] = 'q';
    ExpectFatal(bytes);
    bytes = GoodFile();
    bytes[6] = 'X'; // the six letters are right, their end is not
    ExpectFatal(bytes);
    ExpectFatal(Bytes(4096, 0xFF));
}

TEST_F(FaultContainerTest, AWrongVersion)
{
    for (uint32_t version : {0u, 2u, 0x01000000u, 0xFFFFFFFFu}) {
        SCOPED_TRACE(version);
        ExpectFatal(PictureFileHead(0, version));
    }
}

TEST_F(FaultContainerTest, MoreEntriesThanTheFileHas)
{
    // The third and fourth are 4 and 0 bytes of directory to who multiplies in 32 bits.
    for (uint32_t count : {1u, 0xFFFFFFFFu, 0x0CCCCCCDu, 0x40000000u, 0x7FFFFFFFu, 0x80000000u}) {
        SCOPED_TRACE(count);
        Bytes bytes = PictureFileHead(count);
        bytes.resize(bytes.size() + 19, 0);
        ExpectFatal(bytes);
    }
}

TEST_F(FaultContainerTest, AFileWithoutEntriesIsOneThatLacksPictures)
{
    ExpectNormalStart(PictureFileHead(0));
    ExpectAllPagesWork();
}

TEST_F(FaultContainerTest, EntriesThatLieBeyondTheEndAreLikeMissingOnes)
{
    std::vector<PictureEntry> entries;
    for (uint32_t id = 0; id < 16; id++) {
        entries.push_back({id, 0x7FFFFF00u, 64});
    }
    ExpectNormalStart(PictureDirectory(entries));
    ExpectAllPagesWork();
}

TEST_F(FaultContainerTest, EntriesOfHostileSizesAreLikeMissingOnes)
{
    std::vector<PictureEntry> entries;
    uint32_t id = 0;
    for (uint32_t size : {0xFFFFFFFFu, 0x80000000u, 0x7FFFFFFFu, 0x7FFFFFF0u, 0u, 1u, 20u, 0xFFFFFFF0u}) {
        entries.push_back({id++, 27, size});
        entries.push_back({id++, 0, size});
    }
    ExpectNormalStart(PictureDirectory(entries));
    ExpectAllPagesWork();
}

TEST_F(FaultContainerTest, EntriesThatAreNoPicturesAreLikeMissingOnes)
{
    std::vector<PictureEntry> entries;
    for (uint32_t id = 0; id < 16; id++) {
        entries.push_back({id, 27, 300});
    }
    ExpectNormalStart(PictureDirectory(entries));
    ExpectAllPagesWork();
}

TEST_F(FaultContainerTest, HostileOffsetsDoNotHinderTheStart)
{
    ExpectNormalStart(PictureDirectory({{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, {0xFFFFFFFF, 0x80000000, 1}}));
    ExpectAllPagesWork();
}
