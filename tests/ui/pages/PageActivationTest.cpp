// What showing a page does to its list, step by step.
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

#include <algorithm>

class PageActivationTest : public ProgramTest
{
  protected:
    // The steps of showing a page, from its filling on.
    static Events StepsOfShowing(ProgramApp& app, uint32_t page)
    {
        CVireoView& view = *app.views->At(page - 1);
        HWND list = GetDlgItem(view.Window(), IDC_LIST);
        app.ActivateView(page == 2 ? 3 : 2);
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (window == list) {
                switch (message) {
                case LVM_SETITEMCOUNT:
                    TakeEvents();
                    Note("filled");
                    break;
                case LVM_DELETECOLUMN:
                    Note("column goes");
                    break;
                case LVM_INSERTCOLUMNW:
                    Note("column comes");
                    break;
                case LVM_SETITEMSTATE:
                    Note("state of row " + std::to_string(wParam));
                    break;
                case LVM_SETSELECTIONMARK:
                    Note("mark " + std::to_string(lParam));
                    break;
                case LVM_ENSUREVISIBLE:
                    Note("row in view " + std::to_string(wParam));
                    break;
                default:
                    break;
                }
            }
            return send.Real(window, message, wParam, lParam);
        });
        const SPY(SetFocus) focus([&](HWND window) {
            Note(window == list ? "focus on the list" : "focus elsewhere");
            return focus.Real(window);
        });
        const SPY(UpdateWindow) update([&](HWND window) {
            Note(window == list ? "list painted" : window == view.Window() ? "page painted" : "painted");
            return update.Real(window);
        });
        app.ActivateView(static_cast<int32_t>(page));
        return TakeEvents();
    }
};

TEST_F(PageActivationTest, TheFirstRowIsSelectedInAFreshColumn)
{
    AddTask(L"First");
    AddTask(L"Second");
    InProgram([](ProgramApp& app) {
        SendMessageW(app.TaskList(), LVM_SETSELECTIONMARK, 0, -1);
        Events steps = StepsOfShowing(app, 1);
        // Filling selects by itself where nothing was selected.
        const Events filling = {"filled", "state of row 0", "mark 0", "row in view 0"};
        ASSERT_GE(steps.size(), filling.size());
        EXPECT_EQ(Events(steps.begin(), steps.begin() + 4), filling);
        steps.erase(steps.begin(), steps.begin() + 4);
        EXPECT_EQ(steps, (Events{"column goes", "column comes", "focus on the list", "state of row 0",
                                 "mark 0", "row in view 0", "list painted", "page painted"}));
    });
}

TEST_F(PageActivationTest, AfterAnotherRowTheFirstProcessIsSelectedInAFreshColumn)
{
    InProgram([](ProgramApp& app) {
        app.ActivateView(4);
        SendMessageW(GetDlgItem(app.ActiveView()->Window(), IDC_LIST), WM_KEYDOWN, VK_END, 1);
        EXPECT_EQ(StepsOfShowing(app, 4),
                  (Events{"filled", "column goes", "column comes", "focus on the list", "state of row 0",
                          "mark 0", "row in view 0", "list painted", "page painted"}));
    });
}

TEST_F(PageActivationTest, AnEmptyPageHasItsFreshColumnAndTheFocusToo)
{
    InProgram([](ProgramApp& app) {
        const Events steps = StepsOfShowing(app, 1);
        EXPECT_EQ(
            Events(steps.end() - 5, steps.end()),
            (Events{"column goes", "column comes", "focus on the list", "list painted", "page painted"}));
    });
}

TEST_F(PageActivationTest, EveryPageMakesItsColumnAnew)
{
    InProgram([](ProgramApp& app) {
        for (uint32_t page = 1; page <= 4; page++) {
            const Events steps = StepsOfShowing(app, page);
            EXPECT_EQ(std::count(steps.begin(), steps.end(), "column goes"), 1) << page;
            EXPECT_EQ(std::count(steps.begin(), steps.end(), "column comes"), 1) << page;
        }
    });
}
