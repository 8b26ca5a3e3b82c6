// Tour: goes through the program's states as a user would and keeps a picture of each.
#include "tools/tour/Tour.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"
#include "tools/tour/ChangingPlaces.h"

#include <cstdio>

using namespace rig;

// A screen on which nothing has been drawn, or text alone without icons and bands, has fewer.
static constexpr int fewestColours = 8;

// Below the top bar, and as large as the screen allows when the window can be sized: Wine's programs do not
// know that they are on a handheld.
static void PlaceAsOnDevice(HWND window)
{
    RECT area = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const bool sizable = (GetWindowLongW(window, GWL_STYLE) & WS_THICKFRAME) != 0;
    SetWindowPos(window, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | (sizable ? 0 : SWP_NOSIZE));
}

// The top bar looks at the front window a few times a second; its own text is the title that it shows.
static bool TopBarIsUpToDate()
{
    HWND window = GetForegroundWindow();
    std::wstring title = TextOf(window);
    while (title.empty() && (window = GetWindow(window, GW_OWNER)) != nullptr) {
        title = TextOf(window);
    }
    return TextOf(FindWindowW(L"Shell_TrayWnd", nullptr)) == title;
}

void Require(bool reached, const std::string& complaint)
{
    if (!reached) {
        throw TourError(complaint);
    }
}

Tour::Tour(const std::wstring& pictures, bool comparable)
    : folder(pictures), isComparable(comparable), program(Program::Start())
{}

void Tour::Run()
{
    Require(program.WaitForMainWindow() != nullptr, "Quorvane did not show its window");
    Require(WaitFor([&] { return GetForegroundWindow() == program.MainWindow(); }),
            "Quorvane did not come to the front");
    ShowTasks();
    ShowSysInfo();
    ShowStart();
    ShowStartButton();
    ShowProcs();
    ShowTurned();
    ShowKeys();
    program.Command(CMD_EXIT);
    Require(program.ExitCode(patience) == 0u,
            "Quorvane did not end by its Exit command with the exit code 0");
}

void Tour::GoToPage(int number, int command)
{
    program.Command(command);
    Require(program.WaitForPage(number), "page " + std::to_string(number) + " is not shown");
}

void Tour::SelectRow(int page, int row)
{
    const HWND list = program.List(page);
    const std::string name = "row " + std::to_string(row) + " of page " + std::to_string(page);
    Require(row >= 0 && row < ListCount(list), name + " is not there");
    PressKey(VK_HOME);
    Require(WaitFor([=] { return ListMark(list) == 0; }), "the key Home does not select the first row");
    for (int next = 1; next <= row; next++) {
        PressKey(VK_DOWN);
        Require(WaitFor([=] { return ListMark(list) == next; }), "the key Down does not get to " + name);
    }
}

void Tour::ShowDialog(int command, const char* picture, const std::function<bool(HWND)>& filled)
{
    program.Command(command);
    const HWND dialog = program.WaitForDialog();
    Require(dialog != nullptr, std::string("no dialog opens for ") + picture);
    Require(WaitFor([&] { return filled(dialog); }), std::string("the dialog stays empty for ") + picture);
    Keep(picture);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    Require(WaitFor([&] { return program.Dialog() == nullptr; }),
            std::string("the dialog stays open: ") + picture);
}

bool HasReport(HWND dialog)
{
    const HWND text = GetDlgItem(dialog, IDC_INFORMATION_TEXT);
    return text && !TextOf(text).empty();
}

HWND Tour::WaitForBox(const std::wstring& beginning)
{
    HWND box = nullptr;
    const bool shown = WaitFor([&] {
        box = program.Dialog();
        return box && BoxText(box).starts_with(beginning);
    });
    Require(shown, "no box is shown that begins with: " + std::string(beginning.begin(), beginning.end()));
    return box;
}

void Tour::Answer(HWND box, int button)
{
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    Require(WaitFor([=] { return !IsWindow(box); }), "a box stays open");
}

void Tour::ShowMenu(const char* picture)
{
    PressKey(VK_F2);
    Require(WaitFor([] { return OpenMenu() != nullptr; }), "the soft key Menu opens no menu");
    Keep(picture);
    CloseMenus();
}

void Tour::CloseMenus()
{
    const bool closed = WaitFor([] {
        if (!OpenMenu()) {
            return true;
        }
        PressKey(VK_ESCAPE);
        return WaitFor([] { return OpenMenu() == nullptr; }, std::chrono::milliseconds(200));
    });
    Require(closed, "the key Escape does not close the menu");
}

void Tour::Keep(const char* picture)
{
    const std::string name(picture);
    Require(WaitFor(TopBarIsUpToDate), "the top bar shows another title for " + name);
    FinishPainting(); // on a busy machine a screen can rest before all is painted
    Picture screen = Picture::OfSettledScreen();
    if (isComparable) {
        for (const RECT& place : ChangingPlaces(program.Dialog())) {
            screen.Blank(place);
        }
    }
    Require(screen.Colours() >= fewestColours, "the screen is empty for " + name);
    Require(screen.SavePng(folder + L"\\" + std::wstring(name.begin(), name.end()) + L".png"),
            "cannot write the picture " + name + ".png");
    printf("%s.png\n", picture);
}

OpenedPrograms OpenPrograms(const std::vector<std::wstring>& names)
{
    OpenedPrograms opened;
    for (const std::wstring& name : names) {
        const std::string complaint = std::string(name.begin(), name.end()) + " shows no window";
        const ChildProcess& process =
            *opened.emplace_back(std::make_unique<ChildProcess>(name + L".exe", L"", L"C:\\"));
        Require(process.Id() != 0, complaint);
        const DWORD id = process.Id();
        Require(WaitFor([=] { return ProcessOf(GetForegroundWindow()) == id; }), complaint);
        const HWND window = GetForegroundWindow();
        PlaceAsOnDevice(window);
        // Wine's X driver lifts a window's picture above all others whenever its program moves the focus
        // inside it, even when another program has the front by then. So it must have come to rest before the
        // next one starts.
        WaitForInputIdle(process.Handle(), static_cast<DWORD>(patience.count()));
        Picture::OfSettledScreen();
        // In front of the keyboard is not yet the first of the windows, and lists follow the windows' order.
        Require(Raise(window), std::string(name.begin(), name.end()) + " does not come before the others");
    }
    return opened;
}
