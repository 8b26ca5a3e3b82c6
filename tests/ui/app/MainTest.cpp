// The program's entry: what it is run with.
#include "tests/ui/ProgramTest.h"

class MainTest : public ProgramTest
{};

TEST_F(MainTest, ItRunsWithTheProgramsTitleIconAndKeys)
{
    const auto number = [](const wchar_t* name) {
        return static_cast<UINT>(reinterpret_cast<UINT_PTR>(name));
    };
    std::vector<UINT> strings;
    std::vector<UINT> icons;
    std::vector<UINT> tables;
    int shown = -1;
    const SPY(LoadStringW) text([&](HINSTANCE instance, UINT id, wchar_t* buffer, int size) {
        strings.push_back(id);
        return text.Real(instance, id, buffer, size);
    });
    const SPY(LoadIconW) icon([&](HINSTANCE instance, const wchar_t* name) {
        EXPECT_EQ(instance, GetModuleHandleW(nullptr));
        icons.push_back(number(name));
        return icon.Real(instance, name);
    });
    const SPY(LoadAcceleratorsW) keys([&](HINSTANCE instance, const wchar_t* name) {
        tables.push_back(number(name));
        return keys.Real(instance, name);
    });
    const SPY(ShowWindow) show([&](HWND window, int command) {
        shown = GetParent(window) == nullptr && GetWindow(window, GW_OWNER) == nullptr ? command : shown;
        return show.Real(window, command);
    });
    const SPY(GetMessageW) loop([](MSG* message, HWND, UINT, UINT) {
        message->message = WM_QUIT;
        message->wParam = 5;
        return FALSE;
    });
    EXPECT_EQ(ProgramMain(GetModuleHandleW(nullptr), nullptr, L"", SW_SHOWNOACTIVATE), 5);
    EXPECT_EQ(strings, std::vector<UINT>{1});
    EXPECT_EQ(icons, std::vector<UINT>{101});
    EXPECT_EQ(tables, (std::vector<UINT>{33593, 33594, 137, 33595, 2}));
    EXPECT_EQ(shown, SW_SHOWNOACTIVATE);
}
