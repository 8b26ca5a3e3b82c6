// Which pages have strips between their rows: all but the system information.
#include "pages/procs/CViewProcs.h"
#include "pages/start/CViewStart.h"
#include "pages/sysinfo/CViewSysInfo.h"
#include "pages/tasks/CViewTasks.h"
#include "tests/ui/UiTest.h"

// The page's list without what its rows show.
template <typename List>
class BareList : public List
{
  public:
    using List::List;

  protected:
    void DrawRow(HDC, const RECT&, uint32_t, bool) override {}
    int RowHeight() const override { return 20; }
};

class PageSeparatorsTest : public UiTest
{
  protected:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_MEASUREITEM) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 20;
            return TRUE;
        }
        return message == WM_DRAWITEM ? TRUE : DefWindowProcW(window, message, wParam, lParam);
    }

    // How many strips such a list draws that is 100 pixels high and has two rows.
    template <typename List, typename View>
    static size_t Strips()
    {
        size_t strips = 0;
        InApp([&](TestApp& app) {
            View view;
            view.Create(1, 0, 0);
            WNDCLASSW windowClass = {};
            windowClass.lpfnWndProc = Procedure;
            windowClass.hInstance = app.Instance();
            windowClass.lpszClassName = L"QuorvaneTestOwner";
            RegisterClassW(&windowClass);
            HWND owner = CreateWindowExW(0, L"QuorvaneTestOwner", nullptr, WS_POPUP | WS_VISIBLE, 10, 60, 120,
                                         100, nullptr, nullptr, app.Instance(), nullptr);
            {
                BareList<List> list(view);
                list.Construct(owner);
                list.SetCount(2);
                const SPY(FillRect) fill([&](HDC target, const RECT* rect, HBRUSH brush) {
                    strips += brush == CE_COLOR_BRUSH(COLOR_SCROLLBAR) ? 1U : 0U;
                    return fill.Real(target, rect, brush);
                });
                list.Repaint();
            }
            DestroyWindow(owner);
            DestroyWindow(view.Window());
        });
        return strips;
    }
};

TEST_F(PageSeparatorsTest, TheSingleLineListsHaveThem)
{
    // A page of such rows, below whatever margin the control leaves, and one more slot.
    const size_t tasks = Strips<CLB_Tasks, CViewTasks>();
    EXPECT_GE(tasks, 5U);
    EXPECT_LE(tasks, 6U);
    ForgetClasses();
    EXPECT_EQ((Strips<CLB_Start, CViewStart>()), tasks);
    ForgetClasses();
    EXPECT_EQ((Strips<CLB_Procs, CViewProcs>()), tasks);
}

TEST_F(PageSeparatorsTest, TheSystemInformationHasNone)
{
    EXPECT_EQ((Strips<CLB_Memory, CViewSysInfo>()), 0U);
}
