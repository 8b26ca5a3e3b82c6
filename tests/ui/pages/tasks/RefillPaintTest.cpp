// The page of the running applications: painting and refreshing while its records are rebuilt.
#include "tests/support/Fatal.h"
#include "tests/ui/ProgramTest.h"

class RefillPaintTest : public ProgramTest
{
  protected:
    static void PaintList(HWND list)
    {
        InvalidateRect(list, nullptr, FALSE);
        UpdateWindow(list);
    }
};

TEST_F(RefillPaintTest, RowsWithoutARecordAreNotDrawn)
{
    AddTask(L"One");
    AddTask(L"Two");
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        std::vector<std::wstring> drawn;
        const SPY(DrawTextW) draw([&](HDC dc, const wchar_t* text, int length, RECT* rect, UINT flags) {
            drawn.emplace_back(text);
            return draw.Real(dc, text, length, rect, flags);
        });
        const auto enumerate = enumWindows.instead;
        enumWindows.instead = [&](WNDENUMPROC callback, LPARAM parameter) {
            PaintList(list);
            EXPECT_TRUE(drawn.empty());
            EXPECT_EQ(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 2);
            callback(listed[0], parameter);
            PaintList(list);
            return callback(listed[1], parameter);
        };
        app.Tasks().FillList(-1);
        ASSERT_EQ(drawn.size(), 2U) << "the heap usage and the name of the one record there was";
        EXPECT_EQ(drawn[1], L"One");
        enumWindows.instead = enumerate;
    });
}

// The box's own message loop paints the list.
TEST_F(RefillPaintTest, AFatalReportDuringARefillIsShown)
{
    AddTask(L"One");
    EXPECT_FATAL(InProgram([&](ProgramApp& app) {
                     const SPY(MessageBoxW)
                         box([&](HWND owner, const wchar_t* text, const wchar_t* caption, UINT type) {
                             PaintList(app.TaskList());
                             return box.Real(owner, text, caption, type);
                         });
                     enumWindows.instead = [](WNDENUMPROC, LPARAM) -> BOOL {
                         ReportFatal(ErrorNoMemory, L"RefillPaintTest::Enumerate", 1);
                     };
                     app.Tasks().FillList(-1);
                 }),
                 L"RefillPaintTest::Enumerate", L"Not enough memory");
}

TEST_F(RefillPaintTest, ARefreshDuringARefillIsTheRefillsOwn)
{
    AddTask(L"One");
    InProgram([&](ProgramApp& app) {
        const auto enumerate = enumWindows.instead;
        enumWindows.instead = [&](WNDENUMPROC callback, LPARAM parameter) {
            app.Tasks().FillList(-1);
            return enumerate(callback, parameter);
        };
        app.Tasks().FillList(-1);
        EXPECT_EQ(app.Tasks().TaskCount(), 1U);
        enumWindows.instead = enumerate;
    });
}
