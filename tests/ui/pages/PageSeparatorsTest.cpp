// Which pages have strips between their rows: all but the system information.
#include "dialogs/CLB_SelectApp.h"
#include "pages/procs/CLB_Procs.h"
#include "pages/start/CLB_Start.h"
#include "pages/start/CSearchBox.h"
#include "pages/sysinfo/CLB_Memory.h"
#include "pages/tasks/CLB_Tasks.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/MadePage.h"

// The page's list without what its rows show.
template <typename List>
class BareList : public List
{
  public:
    template <typename... Records>
    explicit BareList(const CRowLook& rowLook, Records&... records) : List(rowLook, records...)
    {}

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
    template <typename List, typename... Records>
    static size_t Strips(Records&... records)
    {
        size_t strips = 0;
        InApp([&](TestApp& app) {
            CRowLook look;
            look.Create(0, 0);
            WNDCLASSW windowClass = {};
            windowClass.lpfnWndProc = Procedure;
            windowClass.hInstance = app.Instance();
            windowClass.lpszClassName = L"QuorvaneTestOwner";
            RegisterClassW(&windowClass);
            HWND owner = CreateWindowExW(0, L"QuorvaneTestOwner", nullptr, WS_POPUP | WS_VISIBLE, 10, 60, 120,
                                         100, nullptr, nullptr, app.Instance(), nullptr);
            {
                BareList<List> list(look, records...);
                list.Construct(owner);
                list.SetCount(2);
                const SPY(FillRect) fill([&](HDC target, const RECT* rect, HBRUSH brush) {
                    strips += brush == CE_COLOR_BRUSH(COLOR_SCROLLBAR) ? 1U : 0U;
                    return fill.Real(target, rect, brush);
                });
                list.Repaint();
            }
            DestroyWindow(owner);
        });
        return strips;
    }
};

TEST_F(PageSeparatorsTest, TheSingleLineListsHaveThem)
{
    // A page of such rows, below whatever margin the control leaves, and one more slot.
    CStartPrograms programs;
    CTaskRecords records(programs);
    const size_t tasks = Strips<CLB_Tasks>(records);
    EXPECT_GE(tasks, 5U);
    EXPECT_LE(tasks, 6U);
    ForgetClasses();
    const CArray<SAppsList*> shown;
    const CSearchBox search;
    const HFONT underlined = nullptr;
    EXPECT_EQ(Strips<CLB_Start>(shown, search, underlined), tasks);
    ForgetClasses();
    EXPECT_EQ(Strips<CLB_SelectApp>(shown), tasks);
    ForgetClasses();
    const CRecords<SProcInfo> processes;
    EXPECT_EQ(Strips<CLB_Procs>(processes), tasks);
}

TEST_F(PageSeparatorsTest, TheSystemInformationHasNone)
{
    const CRecords<SSysInfo> rows;
    const CGaugePictures pictures(BuiltContainer());
    const MemoryDC memory(nullptr);
    EXPECT_EQ(Strips<CLB_Memory>(rows, pictures, memory), 0U);
}
