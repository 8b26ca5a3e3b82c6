// The order in which the program starts.
#include "tests/ui/ProgramTest.h"

class StartOrderTest : public ProgramTest
{};

TEST_F(StartOrderTest, EachStepFollowsTheOneItNeeds)
{
    Events order;
    ProgramApp app;
    const SPY(GetVersionExW) version([&](OSVERSIONINFOW* info) {
        order.emplace_back("platform");
        return version.Real(info);
    });
    const SPY(FindWindowW) find([&](const wchar_t*, const wchar_t*) {
        order.emplace_back("earlier instance");
        return HWND{nullptr};
    });
    const SPY(CreateWindowExW)
        create([&](DWORD exStyle, const wchar_t* className, const wchar_t* title, DWORD style, int x, int y,
                   int width, int height, HWND parent, HMENU menu, HINSTANCE instance, void* parameter) {
            const std::wstring name = className;
            if (name == L"ui_testsApp") {
                order.emplace_back("main window");
            } else if (name.starts_with(L"ui_testsIW")) {
                order.emplace_back("notice window");
            } else if (name.starts_with(L"ui_testsV")) {
                order.push_back("page " + std::string(name.begin() + 9, name.end()));
            }
            return create.Real(exStyle, className, title, style, x, y, width, height, parent, menu, instance,
                               parameter);
        });
    const SPY(CoInitializeEx) com([&](void* reserved, DWORD flags) {
        order.emplace_back("COM");
        return com.Real(reserved, flags);
    });
    const SPY(CreateFileW)
        open([&](const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                 DWORD disposition, DWORD flags, HANDLE other) {
            if (std::wstring(path).ends_with(L"\\Quorvane.zrs")) {
                order.emplace_back("pictures");
            }
            return open.Real(path, access, share, security, disposition, flags, other);
        });
    const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
        order.push_back("bar " + std::to_string(info->nToolBarId));
        return bar.Real(info);
    });
    const SPY(ShowWindow) show([&](HWND window, int command) {
        if (window == app.MainWindow()) {
            order.push_back("show " + std::to_string(command));
        }
        return show.Real(window, command);
    });
    const SPY(LoadAcceleratorsW) load([&](HINSTANCE instance, const wchar_t* table) {
        if (table == MAKEINTRESOURCEW(2)) {
            order.emplace_back("loop");
        }
        return load.Real(instance, table);
    });
    app.body = [&] { order.emplace_back("messages"); };
    EXPECT_EQ(Start(app), 0);
    EXPECT_EQ(order, (Events{"platform", "earlier instance", "main window", "bar 0", "notice window",
                             "notice window", "COM", "pictures", "page 1", "page 2", "page 3", "page 4",
                             "bar 172", "show 1", "loop", "messages"}));
}
