// The notice about a window that has gone.
#include "dialogs/WindowReport.h"
#include "tests/ui/ProgramTest.h"

class TellWhenGoneTest : public ProgramTest
{};

TEST_F(TellWhenGoneTest, AWindowThatHasGoneIsToldAbout)
{
    HWND task = AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        EndTask(task);
        EXPECT_TRUE(TellWhenGone(task));
        EXPECT_EQ(Notice(app), L"Window is no longer exists.");
        app.HideInfo();
        EXPECT_EQ(Notice(app), L"");
        EXPECT_TRUE(TellWhenGone(nullptr));
        EXPECT_EQ(Notice(app), L"Window is no longer exists.");
    });
}

TEST_F(TellWhenGoneTest, NothingIsToldAboutAWindowThatIsThere)
{
    HWND task = AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        EXPECT_FALSE(TellWhenGone(task));
        EXPECT_FALSE(TellWhenGone(app.MainWindow()));
        EXPECT_EQ(Notice(app), L"");
    });
}
