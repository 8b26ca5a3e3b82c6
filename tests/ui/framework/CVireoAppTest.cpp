// CVireoApp: how the application starts and ends.
#include "framework/CVireoInfowin.h"
#include "resources/ids.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestView.h"

class CVireoAppTest : public UiTest
{};

TEST_F(CVireoAppTest, TheMainWindowHasNoParentAndClipsItsChildrenOnly)
{
    std::wstring title;
    int created = 0;
    const SPY(CreateWindowExW)
        create([&](DWORD exStyle, const wchar_t* className, const wchar_t* name, DWORD style, int x, int y,
                   int width, int height, HWND parent, HMENU menu, HINSTANCE instance, void* parameter) {
            if (wcscmp(className, L"ui_testsApp") == 0) {
                created++;
                title = name;
                EXPECT_EQ(exStyle, 0U);
                EXPECT_EQ(style, static_cast<DWORD>(WS_CLIPCHILDREN));
                for (const int value : {x, y, width, height}) {
                    EXPECT_EQ(value, static_cast<int>(CW_USEDEFAULT));
                }
                EXPECT_EQ(parent, nullptr);
                EXPECT_EQ(menu, nullptr);
                EXPECT_EQ(instance, GetModuleHandleW(nullptr));
            }
            return create.Real(exStyle, className, name, style, x, y, width, height, parent, menu, instance,
                               parameter);
        });
    EXPECT_EQ(InApp([](TestApp&) {}), 0);
    EXPECT_EQ(created, 1);
    EXPECT_EQ(title, L"Quorvane");
}

TEST_F(CVireoAppTest, TheMainClassHasTheProgramsIconAndNoCursor)
{
    HICON icon = nullptr;
    const SPY(LoadIconW) loadIcon([&](HINSTANCE instance, const wchar_t* name) {
        EXPECT_EQ(name, MAKEINTRESOURCEW(101));
        icon = loadIcon.Real(instance, name);
        return icon;
    });
    InApp([](TestApp&) {});
    const WNDCLASSW registered = Class(L"ui_testsApp").windowClass;
    EXPECT_EQ(registered.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW));
    EXPECT_NE(icon, nullptr);
    EXPECT_EQ(registered.hIcon, icon);
    EXPECT_EQ(registered.hCursor, nullptr);
    EXPECT_EQ(registered.hbrBackground, GetStockObject(NULL_BRUSH));
    EXPECT_EQ(registered.lpszMenuName, nullptr);
    EXPECT_EQ(registered.cbClsExtra, 0);
    EXPECT_EQ(registered.cbWndExtra, 0);
}

TEST_F(CVireoAppTest, WithoutAClassOrAWindowTheStartEndsWithZero)
{
    registerClass.instead = [](const WNDCLASSW*) -> ATOM { return 0; };
    EXPECT_EQ(InApp([](TestApp&) { ADD_FAILURE(); }), 0);
    registerClass.instead = nullptr;
    const SPY(CreateWindowExW) create([](DWORD, const wchar_t*, const wchar_t*, DWORD, int, int, int, int,
                                         HWND, HMENU, HINSTANCE, void*) { return HWND{nullptr}; });
    EXPECT_EQ(InApp([](TestApp&) { ADD_FAILURE(); }), 0);
    EXPECT_EQ(create.calls.size(), 1U);
    EXPECT_TRUE(TakeEvents().empty());
    UnregisterClassW(L"ui_testsApp", GetModuleHandleW(nullptr));
}

TEST_F(CVireoAppTest, ASecondInstanceLeavesWithZeroBeforeItMakesAClass)
{
    const SPY(FindWindowW) find([](const wchar_t* className, const wchar_t* title) {
        EXPECT_STREQ(className, L"ui_testsApp");
        EXPECT_STREQ(title, L"Quorvane");
        return GetDesktopWindow();
    });
    TestApp app;
    app.mayStart = false;
    EXPECT_EQ(app.Start(), 0);
    EXPECT_EQ(app.earlierInstance, GetDesktopWindow());
    EXPECT_TRUE(classes.empty());
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(CVireoAppTest, TheWindowOfAnEarlierInstanceIsNeverItsOwn)
{
    const SPY(FindWindowW) find([](const wchar_t*, const wchar_t*) { return GetDesktopWindow(); });
    registerClass.instead = [](const WNDCLASSW*) -> ATOM { return 0; };
    TestApp app;
    EXPECT_EQ(app.Start(), 0);
    EXPECT_EQ(app.earlierInstance, GetDesktopWindow());
    EXPECT_EQ(app.MainWindow(), nullptr);
}

TEST_F(CVireoAppTest, TheWindowIsCreatedWithAnEmptyMenuBarAndAFreshActivationRecord)
{
    const SPY(SHCreateMenuBar) bar;
    const SPY(SHHandleWMActivate) activate;
    TestApp app;
    app.create = [&] {
        EXPECT_EQ(bar.calls.size(), 1U);
        EXPECT_EQ(app.activateInfo.cbSize, sizeof(SHACTIVATEINFO));
        return true;
    };
    app.body = [&] {
        app.activateInfo.cbSize = 1;
        app.activateInfo.hwndLastFocus = app.MainWindow();
        app.activateInfo.fActive = 1;
        CREATESTRUCTW creation = {};
        creation.lpCreateParams = &app;
        HWND firstBar = app.MenuBar();
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_CREATE, 0, reinterpret_cast<LPARAM>(&creation)), 0);
        EXPECT_EQ(app.activateInfo.cbSize, sizeof(SHACTIVATEINFO));
        EXPECT_EQ(app.activateInfo.hwndLastFocus, nullptr);
        EXPECT_EQ(app.activateInfo.fActive, 0U);
        EXPECT_EQ(bar.calls.size(), 2U);
        EXPECT_FALSE(IsWindow(firstBar));
        EXPECT_TRUE(IsWindow(app.MenuBar()));
        EXPECT_EQ(GetWindow(app.MenuBar(), GW_OWNER), app.MainWindow());
    };
    EXPECT_EQ(app.Start(), 0);
}

TEST_F(CVireoAppTest, TheMainWindowEndsWhereTheMenuBarBegins)
{
    const SPY(MoveWindow) move;
    RECT atCreation = {};
    TestApp app;
    const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
        atCreation = WindowRect(info->hwndParent);
        EXPECT_EQ(info->nToolBarId, 0U);
        EXPECT_EQ(info->dwFlags, 1U);
        EXPECT_EQ(info->cbSize, sizeof(SHMENUBARINFO));
        EXPECT_EQ(info->hInstRes, GetModuleHandleW(nullptr));
        return bar.Real(info);
    });
    app.create = [&] {
        const RECT main = WindowRect(app.MainWindow());
        EXPECT_EQ(main.bottom, WindowRect(app.MenuBar()).top);
        EXPECT_LT(main.bottom, atCreation.bottom);
        EXPECT_EQ(main.top, atCreation.top);
        EXPECT_EQ(main.left, atCreation.left);
        EXPECT_EQ(main.right, atCreation.right);
        EXPECT_EQ(move.calls.size(), 1U);
        EXPECT_EQ(std::get<0>(move.calls.at(0)), app.MainWindow());
        EXPECT_FALSE(std::get<5>(move.calls.at(0)));
        return false;
    };
    EXPECT_EQ(app.Start(), -1);
    DestroyWindow(app.MainWindow());
}

TEST_F(CVireoAppTest, WithoutAMenuBarTheMainWindowKeepsItsHeight)
{
    const SPY(SHCreateMenuBar) bar([](SHMENUBARINFO*) { return FALSE; });
    const SPY(MoveWindow) move;
    InApp([&](TestApp& app) {
        EXPECT_EQ(app.MenuBar(), nullptr);
        EXPECT_TRUE(move.calls.empty());
    });
    EXPECT_EQ(bar.calls.size(), 1U);
}

TEST_F(CVireoAppTest, TwoHiddenInfoWindowsExistBeforeOnCreate)
{
    TestApp app;
    app.create = [&] {
        EXPECT_TRUE(app.infoWindow && app.secondInfoWindow);
        for (const CVireoInfowin* info : {app.infoWindow, app.secondInfoWindow}) {
            EXPECT_TRUE(IsWindow(info->Window()));
            EXPECT_FALSE(IsWindowVisible(info->Window()));
        }
        EXPECT_NE(app.infoWindow->Window(), app.secondInfoWindow->Window());
        return true;
    };
    app.body = [] {};
    EXPECT_EQ(app.Start(), 0);
}

TEST_F(CVireoAppTest, ARefusedOnCreateDeletesTheInfoWindowsAndReturnsMinusOne)
{
    HWND infoWindows[2] = {};
    TestApp app;
    app.body = [] { ADD_FAILURE() << "the loop ran"; };
    app.create = [&] {
        infoWindows[0] = app.infoWindow->Window();
        infoWindows[1] = app.secondInfoWindow->Window();
        return false;
    };
    EXPECT_EQ(app.Start(), -1);
    EXPECT_FALSE(IsWindow(infoWindows[0]));
    EXPECT_FALSE(IsWindow(infoWindows[1]));
    EXPECT_FALSE(IsWindowVisible(app.MainWindow()));
    DestroyWindow(app.MainWindow());
}

TEST_F(CVireoAppTest, WithoutViewsTheWindowIsShownAndTheLoopRuns)
{
    bool ran = false;
    InApp([&](TestApp& app) {
        ran = true;
        EXPECT_EQ(app.ActiveView(), nullptr);
        EXPECT_TRUE(IsWindowVisible(app.MainWindow()));
    });
    EXPECT_TRUE(ran);
}

TEST_F(CVireoAppTest, TheFirstViewIsActivatedUnlessAnotherIsAskedFor)
{
    for (const int32_t asked : {-1, 2, 0}) {
        TestApp app;
        app.initialViewId = asked;
        app.create = [] {
            TestView::Add(7);
            TestView::Add(2);
            TestView::Add(0);
            return true;
        };
        app.body = [&] {
            ASSERT_NE(app.ActiveView(), nullptr);
            EXPECT_EQ(app.ActiveView()->Id(), asked == -1 ? 7 : asked);
        };
        app.Start();
        ForgetClasses();
    }
}

TEST_F(CVireoAppTest, TheWindowIsShownAsTheProgramIsTold)
{
    for (const int command : {SW_SHOWNORMAL, SW_HIDE, SW_SHOWNOACTIVATE}) {
        std::vector<int> shown;
        const SPY(ShowWindow) show([&](HWND window, int how) {
            if (NameOf(window) == "main") {
                shown.push_back(how);
            }
            return show.Real(window, how);
        });
        TestApp app([] {});
        app.Start(command);
        EXPECT_EQ(shown, std::vector<int>{command});
        ForgetClasses();
    }
}

TEST_F(CVireoAppTest, MinimisingAtTheStartFollowsTheShowing)
{
    const SPY(ShowWindow) show([&](HWND window, int command) {
        if (NameOf(window) == "main") {
            Note("ShowWindow " + std::to_string(command));
        }
        return show.Real(window, command);
    });
    const SPY(UpdateWindow) update([&](HWND window) {
        if (NameOf(window) == "main") {
            Note("UpdateWindow");
        }
        return update.Real(window);
    });
    TestApp app;
    Events start;
    app.startMinimised = true;
    app.create = [] {
        TakeEvents();
        return true;
    };
    app.body = [] {};
    const SPY(LoadAcceleratorsW) load([&](HINSTANCE instance, const wchar_t* table) {
        EXPECT_EQ(table, MAKEINTRESOURCEW(2));
        start = TakeEvents();
        return load.Real(instance, table);
    });
    app.Start();
    std::erase_if(start, [](const std::string& event) { return event.starts_with("app On"); });
    EXPECT_EQ(start, (Events{"ShowWindow 1", "ShowWindow 6", "UpdateWindow"}));
}

TEST_F(CVireoAppTest, TheEndTakesViewsThenBarThenInfoWindowsThenTheApplication)
{
    TestApp app;
    const SPY(DestroyWindow) destroy([&](HWND window) {
        // The arrays go before the bar.
        const bool arraysGone = app.views == nullptr && app.dialogs == nullptr;
        Note("DestroyWindow " + NameOf(window) + (arraysGone ? " without arrays" : ""));
        return destroy.Real(window);
    });
    const SPY(PostQuitMessage) quit([&](int code) {
        Note("PostQuitMessage " + std::to_string(code));
        quit.Real(code);
    });
    app.create = [&] {
        TestView::Add(1);
        TestView::Add(2);
        return true;
    };
    app.body = [&] {
        NameWindow(app.MenuBar(), "bar");
        NameWindow(app.infoWindow->Window(), "info 1");
        NameWindow(app.secondInfoWindow->Window(), "info 2");
    };
    EXPECT_EQ(app.Start(), 0);
    Events end = TakeEvents();
    std::erase_if(end, [](const std::string& event) { return event.find("ctivate") != std::string::npos; });
    EXPECT_EQ(end, (Events{"DestroyWindow main", "view 1 OnDestroy", "view 1 deleted", "view 2 OnDestroy",
                           "view 2 deleted", "DestroyWindow bar without arrays",
                           "DestroyWindow info 1 without arrays", "DestroyWindow info 2 without arrays",
                           "app OnDestroy", "PostQuitMessage 0"}));
}

TEST_F(CVireoAppTest, RunReturnsTheParameterOfTheQuitMessage)
{
    TestApp app;
    app.endsAfterBody = false;
    app.body = [] { PostQuitMessage(5); };
    EXPECT_EQ(app.Start(), 5);
}

TEST_F(CVireoAppTest, NoticesGoToTheFirstInfoWindowAndDoNotBlink)
{
    InApp([](TestApp& app) {
        const SPY(SetTimer) timers;
        app.ShowInfo(L"Saved", 4000, InfoCentreX);
        EXPECT_TRUE(IsWindowVisible(app.infoWindow->Window()));
        EXPECT_FALSE(IsWindowVisible(app.secondInfoWindow->Window()));
        ASSERT_EQ(timers.calls.size(), 1U);
        EXPECT_EQ(std::get<0>(timers.calls[0]), app.infoWindow->Window());
        EXPECT_EQ(std::get<1>(timers.calls[0]), 100U);
        EXPECT_EQ(std::get<2>(timers.calls[0]), 4000U);
        app.HideInfo();
        EXPECT_FALSE(IsWindowVisible(app.infoWindow->Window()));
    });
}
