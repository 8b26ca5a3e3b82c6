// The four pages' lists: the names of their fatal reports, and the pages' titles.
#include "pages/PageTable.h"
#include "pages/procs/CViewProcs.h"
#include "pages/start/CViewStart.h"
#include "pages/sysinfo/CViewSysInfo.h"
#include "pages/tasks/CViewTasks.h"
#include "tests/support/Fatal.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/MadePage.h"

class ListNamesTest : public UiTest
{
  protected:
    template <typename View>
    static void CreateWithoutAList()
    {
        InApp([](TestApp&) {
            const SPY(CreateWindowExW) create(
                [&](DWORD exStyle, const wchar_t* className, const wchar_t* title, DWORD style, int x, int y,
                    int width, int height, HWND parent, HMENU menu, HINSTANCE instance, void* parameter) {
                    return wcscmp(className, L"SysListView32") == 0
                               ? nullptr
                               : create.Real(exStyle, className, title, style, x, y, width, height, parent,
                                             menu, instance, parameter);
                });
            const auto view = MadePage<View>();
            view->Create(PageTasks, 0, 0);
        });
    }

    template <typename View>
    static void CreateWithoutAColumn()
    {
        InApp([](TestApp&) {
            const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
                return message == LVM_INSERTCOLUMNW ? -1 : send.Real(window, message, wParam, lParam);
            });
            const auto view = MadePage<View>();
            view->Create(PageTasks, 0, 0);
        });
    }

    // The title that a page draws into its strip.
    template <typename View>
    static std::wstring Title(PageId id)
    {
        std::wstring title;
        InApp([&](TestApp& app) {
            View* view = MadePage<View>().release();
            view->Create(id, 0, 0);
            app.AddView(view);
            const SPY(DrawTextW)
                draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
                    title = text;
                    return draw.Real(target, text, length, rect, format);
                });
            HDC screen = GetDC(view->Window());
            view->OnPaint(screen);
            ReleaseDC(view->Window(), screen);
        });
        return title;
    }
};

TEST_F(ListNamesTest, AListWithoutAWindowIsFatalUnderItsName)
{
    EXPECT_FATAL_AT(CreateWithoutAList<CViewTasks>(), L"CLB_Tasks::Construct", 214, L"Error");
    EXPECT_FATAL_AT(CreateWithoutAList<CViewStart>(), L"CLB_Start::Construct", 214, L"Error");
    EXPECT_FATAL_AT(CreateWithoutAList<CViewSysInfo>(), L"CLB_Memory::Construct", 214, L"Error");
    EXPECT_FATAL_AT(CreateWithoutAList<CViewProcs>(), L"CLB_Procs::Construct", 214, L"Error");
}

TEST_F(ListNamesTest, AListWithoutAColumnIsFatalUnderItsName)
{
    EXPECT_FATAL_AT(CreateWithoutAColumn<CViewTasks>(), L"CLB_Tasks::RecreateColumns", 53, L"Error");
    EXPECT_FATAL_AT(CreateWithoutAColumn<CViewStart>(), L"CLB_Start::RecreateColumns", 53, L"Error");
    EXPECT_FATAL_AT(CreateWithoutAColumn<CViewSysInfo>(), L"CLB_Memory::RecreateColumns", 53, L"Error");
    EXPECT_FATAL_AT(CreateWithoutAColumn<CViewProcs>(), L"CLB_Procs::RecreateColumns", 53, L"Error");
}

TEST_F(ListNamesTest, EveryPageHasItsTitle)
{
    EXPECT_EQ(Title<CViewTasks>(PageTasks), L"Running applications");
    ForgetClasses();
    EXPECT_EQ(Title<CViewStart>(PageStart), L"Start");
    ForgetClasses();
    EXPECT_EQ(Title<CViewSysInfo>(PageSysInfo), L"System information");
    ForgetClasses();
    EXPECT_EQ(Title<CViewProcs>(PageProcs), L"Processes");
}
