// However often a page is refreshed or changed, the device's executable keeps nothing: no block of its heap,
// no open object, no GDI object.
// profiles: pocketpc
#include "resources/ids.h"
#include "rig/Desktop.h"
#include "tests/runner/counts/CountedProgram.h"
#include "tests/runner/counts/Scene.h"
#include "tests/support/ProcessObjects.h"

#include <gtest/gtest.h>

// Of the four pages together; a tenth as many page changes. All of them take minutes.
static DWORD Refreshes()
{
    wchar_t number[16] = {};
    GetEnvironmentVariableW(L"QV_REFRESHES", number, 16);
    const DWORD wanted = wcstoul(number, nullptr, 10);
    return wanted == 0 ? 1000 : wanted;
}

class HeapGrowthTest : public testing::Test
{
  protected:
    counts::Scene scene;
    counts::CountedProgram program{scene.Folder()};

    void SetUp() override
    {
        ASSERT_TRUE(scene.HaveWindows(3) && scene.HaveCards(2) && scene.HaveShortcuts(5));
        ASSERT_TRUE(program.Start());
    }

    void Do(UINT command, DWORD times) const
    {
        ASSERT_TRUE(program.Do("work", program.Rig().MainWindow(), WM_COMMAND, command, 0, times))
            << "command " << command;
    }

    int GdiObjects() const { return ProcessObjects::Of(program.Rig().Process()).gdiObjects; }

    // What the first times leave behind are caches. kept: bytes that stay each time, on purpose.
    void ExpectKept(DWORD kept, UINT command, DWORD times) const
    {
        constexpr DWORD warmUps = 20;
        constexpr int moving = 10; // of the system's caches of device contexts
        ASSERT_NO_FATAL_FAILURE(Do(command, warmUps));
        const std::optional<counts::Objects> before = program.Left();
        const int gdiObjects = GdiObjects();
        ASSERT_NO_FATAL_FAILURE(Do(command, times));
        const std::optional<counts::Objects> after = program.Left();
        ASSERT_TRUE(before && after && gdiObjects != 0);
        EXPECT_EQ(before->blocks, after->blocks) << "blocks of the heap, after " << times << " times";
        EXPECT_EQ(before->bytes + kept * times, after->bytes) << "bytes, after " << times << " times";
        EXPECT_EQ(before->open, after->open) << "after " << times << " times";
        EXPECT_LE(GdiObjects(), gdiObjects + moving) << "after " << times << " times";
    }
};

// Each reading of the Start menu adds eight numbers to the table of the well-known programs.
static constexpr DWORD keptByReading = 8 * 4;

TEST_F(HeapGrowthTest, RefreshesKeepNothing)
{
    for (const UINT page : {CMD_SHOW_TASKS, CMD_SHOW_SYSINFO, CMD_SHOW_START, CMD_SHOW_PROCS}) {
        SCOPED_TRACE("the page of command " + std::to_string(page));
        ASSERT_NO_FATAL_FAILURE(Do(page, 1));
        ExpectKept(page == CMD_SHOW_START ? keptByReading : 0, CMD_REFRESH, Refreshes() / 4);
    }
}

TEST_F(HeapGrowthTest, PageChangesKeepNothing)
{
    ExpectKept(0, CMD_NEXT_PAGE, Refreshes() / 10);
}
