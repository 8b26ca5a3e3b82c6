// The table of the pages and the ring that it forms.
#include "pages/PageTable.h"
#include "tests/support/Fatal.h"

TEST(PageTableTest, EveryPageIsFoundByItsIdWithItsCommandAndTexts)
{
    const struct
    {
        PageId id;
        int32_t number;
        uint32_t command;
        const wchar_t* title;
        const wchar_t* menuText;
    } pages[] = {{PageTasks, 1, 32796, L"Running applications", L"Running apps"},
                 {PageSysInfo, 2, 32797, L"System information", L"System info"},
                 {PageStart, 3, 32803, L"Start", L"Start"},
                 {PageProcs, 4, 32798, L"Processes", L"Processes"}};
    for (const auto& expected : pages) {
        EXPECT_EQ(expected.id, expected.number);
        const SPage& page = PageOf(expected.number);
        EXPECT_EQ(page.id, expected.id);
        EXPECT_EQ(page.showCommand, expected.command);
        EXPECT_STREQ(page.title, expected.title);
        EXPECT_STREQ(page.menuText, expected.menuText);
        EXPECT_EQ(PageOfCommand(expected.command), &page);
    }
}

TEST(PageTableTest, AnUnknownIdIsFatal)
{
    for (const int32_t id : {-1, 0, 5, 32796}) {
        EXPECT_FATAL(PageOf(id), L"PageOf", L"Not found");
    }
}

TEST(PageTableTest, ANeighbourOfAnUnknownPageIsFatalToo)
{
    EXPECT_FATAL(Neighbour(0, 1), L"PageOf", L"Not found");
}

TEST(PageTableTest, OtherCommandsShowNoPage)
{
    for (const uint32_t command : {0U, 1U, 2U, 3U, 4U, 32795U, 32799U, 32804U, 0xFFFFFFFFU}) {
        EXPECT_EQ(PageOfCommand(command), nullptr) << command;
    }
}

TEST(PageTableTest, TheRingLeadsRoundInBothDirections)
{
    const PageId ring[] = {PageTasks, PageStart, PageSysInfo, PageProcs};
    for (int place = 0; place < 4; place++) {
        EXPECT_EQ(pageRing[place].id, ring[place]);
        EXPECT_EQ(Neighbour(ring[place], 1), ring[(place + 1) % 4]) << place;
        EXPECT_EQ(Neighbour(ring[place], -1), ring[(place + 3) % 4]) << place;
    }
}

TEST(PageTableTest, SeveralStepsGoRoundMoreThanOnce)
{
    EXPECT_EQ(Neighbour(PageTasks, 0), PageTasks);
    EXPECT_EQ(Neighbour(PageTasks, 4), PageTasks);
    EXPECT_EQ(Neighbour(PageProcs, 6), PageStart);
    EXPECT_EQ(Neighbour(PageTasks, -5), PageProcs);
    EXPECT_EQ(Neighbour(PageStart, -9), PageTasks);
}
