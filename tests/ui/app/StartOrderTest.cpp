// The order in which the program starts.
#include "tests/support/ScriptedStartMenu.h"
#include "tests/ui/app/KeyProgramTest.h"

class StartOrderTest : public KeyProgramTest
{
  protected:
    // Tells when it is asked whether to go on starting.
    class AskedProgram : public ProgramApp
    {
      public:
        std::function<void()> asked;
        bool CheckPrevInstance(HWND existingWindow, const wchar_t* line) override
        {
            asked();
            return ProgramApp::CheckPrevInstance(existingWindow, line);
        }
    };

    std::string Done(KeyProgram& app) const
    {
        std::string done = std::to_string(app.views->Count()) + " pages";
        done += app.homeKey.command == 4 ? ", settings" : "";
        done += app.resources != nullptr ? ", pictures" : "";
        done += app.startPrograms.Programs().Count() == 1 ? ", programs" : "";
        done += claims.calls.empty() ? "" : ", Home key";
        done += events.empty() ? "" : ", button";
        return done;
    }

    // What each step of a start by a button finds done, while a hold of the Home key is bound.
    Events StepsOn(Platform device)
    {
        ScriptedStartMenu menu;
        menu.Add(L"Calculator.lnk", L"\\Windows\\calc.exe");
        settings.WriteCommand(4);
        Events steps;
        KeyProgram app;
        app.device = device;
        app.commandLine = L"193 3*9";
        const auto tell = [&](const std::string& step) { steps.push_back(step + ": " + Done(app)); };
        app.created = [&] {
            claims.expectedWindow = app.MainWindow();
            tell("beginning");
        };
        const SPY(CoInitializeEx) com([&](void* reserved, DWORD flags) {
            tell("COM");
            return com.Real(reserved, flags);
        });
        const SPY(CreateFileW)
            open([&](const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                     DWORD disposition, DWORD flags, HANDLE other) {
                tell("pictures");
                return open.Real(path, access, share, security, disposition, flags, other);
            });
        const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
            if (info->nToolBarId != 0) {
                tell("showing");
            }
            return bar.Real(info);
        });
        const SPY(LoadAcceleratorsW) load([&](HINSTANCE instance, const wchar_t* table) {
            tell("keys");
            return load.Real(instance, table);
        });
        EXPECT_EQ(Start(app), 0);
        return steps;
    }
};

TEST_F(StartOrderTest, EachStepFollowsTheOneItNeeds)
{
    Events order;
    AskedProgram app;
    app.asked = [&] { order.emplace_back("going on?"); };
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
    EXPECT_EQ(order, (Events{"platform", "earlier instance", "going on?", "main window", "bar 0",
                             "notice window", "notice window", "COM", "pictures", "page 1", "page 2",
                             "page 3", "page 4", "bar 172", "show 1", "loop", "messages"}));
}

// The bar comes with the first page's showing, the last keys are the program's own, for its loop.
TEST_F(StartOrderTest, SettingsComeFirstAndTheKeysThatAreClaimedOrWaitedForLast)
{
    const Events common = {"beginning: 0 pages",
                           "COM: 0 pages, settings",
                           "pictures: 0 pages, settings",
                           "keys: 0 pages, settings, pictures, programs",
                           "keys: 1 pages, settings, pictures, programs",
                           "keys: 2 pages, settings, pictures, programs",
                           "keys: 3 pages, settings, pictures, programs"};
    const std::pair<Platform, std::string> devices[] = {{Platform::Smartphone, "Home key"},
                                                        {Platform::PocketPC, "button"}};
    for (const auto& [device, last] : devices) {
        claims.TakeCalls();
        TakeEvents();
        Events expected = common;
        expected.push_back("showing: 4 pages, settings, pictures, programs, " + last);
        expected.push_back("keys: 4 pages, settings, pictures, programs, " + last);
        EXPECT_EQ(StepsOn(device), expected);
    }
}
