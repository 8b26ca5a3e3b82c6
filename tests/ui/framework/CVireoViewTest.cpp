// CVireoView: its window and what it does with messages.
#include "resources/ids.h"
#include "tests/support/Fatal.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestView.h"

class CVireoViewTest : public UiTest
{
  protected:
    // Runs a test on an active view with the id 7.
    static void WithView(const std::function<void(TestView&)>& test)
    {
        InApp([&](TestApp& app) {
            TestView* view = TestView::Add(7);
            app.ActivateView(7);
            TakeEvents();
            test(*view);
        });
    }
};

TEST_F(CVireoViewTest, EveryViewHasAClassOfItsOwn)
{
    InApp([this](TestApp& app) {
        TestView::Add(7);
        TestView::Add(12);
        Class(L"ui_testsV12");
        const WNDCLASSW registered = Class(L"ui_testsV7").windowClass;
        EXPECT_EQ(registered.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW));
        EXPECT_EQ(registered.hInstance, app.Instance());
        EXPECT_EQ(registered.hIcon, nullptr);
        EXPECT_EQ(registered.hCursor, nullptr);
        EXPECT_EQ(registered.hbrBackground, GetStockObject(WHITE_BRUSH));
    });
}

TEST_F(CVireoViewTest, ItsWindowCoversTheMainWindowsClientArea)
{
    InApp([](TestApp& app) {
        void* asked = nullptr;
        const SPY(CreateWindowExW) create([&](DWORD exStyle, const wchar_t* className, const wchar_t* title,
                                              DWORD style, int x, int y, int width, int height, HWND parent,
                                              HMENU menu, HINSTANCE instance, void* parameter) {
            const SIZE client = ClientSize(app.MainWindow());
            EXPECT_EQ(exStyle, 0U);
            EXPECT_STREQ(className, L"ui_testsV7");
            EXPECT_STREQ(title, L"ui_testsV7");
            EXPECT_EQ(style, static_cast<DWORD>(WS_VISIBLE));
            EXPECT_EQ(x, 0);
            EXPECT_EQ(y, 0);
            EXPECT_EQ(width, client.cx);
            EXPECT_EQ(height, client.cy);
            EXPECT_EQ(parent, app.MainWindow());
            EXPECT_EQ(menu, nullptr);
            EXPECT_EQ(instance, app.Instance());
            asked = parameter;
            return create.Real(exStyle, className, title, style, x, y, width, height, parent, menu, instance,
                               parameter);
        });
        TestView* view = TestView::Add(7);
        EXPECT_EQ(create.calls.size(), 1U);
        EXPECT_EQ(asked, static_cast<CVireoView*>(view));
        EXPECT_EQ(WindowRect(view->Window()), WindowRect(app.MainWindow()));
        EXPECT_EQ(GetParent(view->Window()), app.MainWindow());
    });
}

TEST_F(CVireoViewTest, AFailedClassIsFatal)
{
    EXPECT_FATAL(InApp([this](TestApp&) {
                     registerClass.instead = [](const WNDCLASSW*) -> ATOM { return 0; };
                     TestView::Add(7);
                 }),
                 L"CVireoView::BaseConstruct", L"Error");
}

static void AddViewWithoutAWindow()
{
    const SPY(CreateWindowExW) create([](DWORD, const wchar_t*, const wchar_t*, DWORD, int, int, int, int,
                                         HWND, HMENU, HINSTANCE, void*) { return HWND{nullptr}; });
    TestView::Add(7);
}

TEST_F(CVireoViewTest, AFailedWindowIsFatal)
{
    EXPECT_FATAL(InApp([](TestApp&) { AddViewWithoutAWindow(); }), L"CVireoView::BaseConstruct",
                 L"Error creating view wnd");
}

TEST_F(CVireoViewTest, ItIsVisibleInOnCreateAndHiddenUntilActivated)
{
    InApp([](TestApp& app) {
        TestView view;
        bool created = false;
        view.onCreate = [&] {
            created = true;
            EXPECT_TRUE(IsWindowVisible(view.Window()));
        };
        view.Create(7, 0, 0);
        EXPECT_TRUE(created);
        EXPECT_FALSE(IsWindowVisible(view.Window()));
        EXPECT_EQ(app.ActiveView(), nullptr);
        DestroyWindow(view.Window());
    });
}

TEST_F(CVireoViewTest, ItKeepsItsNumbersAndLoadsItsAccelerators)
{
    InApp([](TestApp&) {
        const SPY(LoadAcceleratorsW) load;
        TestView* plain = TestView::Add(7, IDB_TASKS, 0);
        EXPECT_EQ(plain->Id(), 7);
        EXPECT_EQ(plain->MenuBarId(), static_cast<uint32_t>(IDB_TASKS));
        EXPECT_EQ(plain->Accelerators(), nullptr);
        EXPECT_TRUE(load.calls.empty());
        TestView* withKeys = TestView::Add(8, IDB_TASKS, IDA_TASKS);
        EXPECT_NE(withKeys->Accelerators(), nullptr);
        ASSERT_EQ(load.calls.size(), 1U);
        EXPECT_EQ(std::get<1>(load.calls[0]), MAKEINTRESOURCEW(IDA_TASKS));
    });
}

TEST_F(CVireoViewTest, DestructionIsAbsorbed)
{
    InApp([](TestApp&) {
        class Asked : public TestView
        {
          public:
            std::vector<UINT> messages;
            LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
            {
                messages.push_back(message);
                return message == WM_DESTROY ? 1 : TestView::WindowProc(message, wParam, lParam);
            }
        } view;
        view.Create(7, 0, 0);
        view.messages.clear();
        EXPECT_EQ(SendMessageW(view.Window(), WM_DESTROY, 0, 0), 0);
        EXPECT_TRUE(view.messages.empty());
        EXPECT_TRUE(IsWindow(view.Window()));
        DestroyWindow(view.Window());
    });
}

TEST_F(CVireoViewTest, PaintingHappensBetweenBeginAndEnd)
{
    WithView([](TestView& view) {
        HDC begun = nullptr;
        const SPY(BeginPaint) begin([&](HWND window, PAINTSTRUCT* paint) {
            Note("begin " + NameOf(window));
            begun = begin.Real(window, paint);
            return begun;
        });
        const SPY(EndPaint) end([&](HWND window, const PAINTSTRUCT* paint) {
            Note("end " + NameOf(window));
            return end.Real(window, paint);
        });
        view.onPaint = [&](HDC target) {
            EXPECT_NE(target, nullptr);
            EXPECT_EQ(target, begun);
            Note("OnPaint");
        };
        InvalidateRect(view.Window(), nullptr, FALSE);
        UpdateWindow(view.Window());
        EXPECT_EQ(TakeEvents(), (Events{"begin view 7", "OnPaint", "end view 7"}));
        EXPECT_EQ(SendMessageW(view.Window(), WM_PAINT, 0, 0), 0);
        view.onPaint = nullptr;
    });
}

TEST_F(CVireoViewTest, CommandsOfItsControlsReachOnCommand)
{
    WithView([](TestView& view) {
        EXPECT_EQ(SendMessageW(view.Window(), WM_COMMAND, MAKEWPARAM(40000, 50000), 77), 0);
        EXPECT_EQ(TakeEvents(), (Events{"view 7 OnCommand 40000,50000,77"}));
    });
}

TEST_F(CVireoViewTest, EverythingElseReachesWindowProcWhoseResultCounts)
{
    WithView([](TestView& view) {
        EXPECT_EQ(SendMessageW(view.Window(), TestView::messageNoted + 6, 7, 8), TestView::messageResult);
        EXPECT_EQ(TakeEvents(), (Events{"view 7 WindowProc 6,7,8"}));
    });
}

TEST_F(CVireoViewTest, ItIsLaidOutOnceAfterItsControlsWereMade)
{
    InApp([](TestApp& app) {
        class Sized : public TestView
        {
          public:
            std::vector<LPARAM> sizes;
            LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
            {
                if (message == WM_SIZE) {
                    sizes.push_back(lParam);
                }
                return TestView::WindowProc(message, wParam, lParam);
            }
        } view;
        view.onCreate = [&] { view.sizes.clear(); };
        view.Create(7, 0, 0);
        const SIZE client = ClientSize(app.MainWindow());
        EXPECT_EQ(view.sizes, std::vector<LPARAM>{MAKELPARAM(client.cx, client.cy)});
        DestroyWindow(view.Window());
    });
}

TEST_F(CVireoViewTest, ADeletedViewGetsNoMoreMessages)
{
    InApp([](TestApp&) {
        auto* view = new TestView;
        view->Create(7, 0, 0);
        HWND window = view->Window();
        delete view;
        TakeEvents();
        EXPECT_NE(SendMessageW(window, TestView::messageNoted, 0, 0), TestView::messageResult);
        EXPECT_TRUE(TakeEvents().empty());
        DestroyWindow(window);
    });
}
