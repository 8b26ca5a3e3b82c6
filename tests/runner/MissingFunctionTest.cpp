// A device that lacks a function which is looked up late, for each of them: the start says what does not
// work, or nothing when nobody would miss it, and the program works and ends all the same.
// profiles: pocketpc-vga smartphone
#include "platform/device/LateFunction.h"
#include "rig/Controls.h"
#include "rig/MenuTwin.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/ShellSession.h"
#include "tests/runner/RunnerLog.h"

#include <LateExports.h>

using namespace rig;

namespace {

// What the start says of a function that is missing.
struct Notification
{
    const wchar_t* function;
    const wchar_t* text;
    bool onSmartphones;
};

} // namespace

// In the order of the start.
static constexpr Notification notifications[] = {
    {L"aygshell#83",
     L"This device's shell lacks a function (aygshell.dll, 83): the input panel can cover the page.", false},
    {L"aygshell#84",
     L"This device's shell lacks a function (aygshell.dll, 84): the input panel can stay open.", false},
    {L"aygshell#97",
     L"This device's shell lacks a function (aygshell.dll, 97): the Back key does not delete text.", true},
};
static constexpr wchar_t backFunction[] = L"aygshell#97";

// As the runner takes it.
static std::wstring LabelOf(const LateExport& function)
{
    const std::wstring file = function.library;
    const std::wstring library = file.substr(0, file.find(L'.'));
    return function.name ? library + L"." + function.name : library + L"#" + std::to_wstring(function.number);
}

static std::wstring AllLabels()
{
    std::wstring all;
    for (const LateExport* function : late::all) {
        all += (all.empty() ? L"" : L",") + LabelOf(*function);
    }
    return all;
}

static bool Has(const std::wstring& functions, const std::wstring& function)
{
    return (L"," + functions + L",").find(L"," + function + L",") != std::wstring::npos;
}

// The lines that the system information page loses.
static int LostRows(const std::wstring& functions)
{
    return (Has(functions, L"note_prj#7") ? 1 : 0) +
           (Has(functions, L"coredll.GetSystemPowerStatusEx") ? 1 : 0);
}

class MissingFunctionTest : public ShellSession, public testing::WithParamInterface<std::wstring>
{
  protected:
    static int wholeRows; // of the system information page of a device that lacks nothing
    const RunnerLog log;

    static void SetUpTestSuite()
    {
        Program whole = Program::Start();
        ASSERT_TRUE(whole.WaitForMainWindow()) << whole.WhyNoMainWindow();
        whole.Command(ShowSysInfoCommand);
        ASSERT_TRUE(whole.WaitForPage(SysInfoPage));
        wholeRows = ListCount(whole.List(SysInfoPage));
    }

    void SetUp() override
    {
        StartWithout(GetParam());
        StartProgram(L"", ProgramFolder());
    }
    void TearDown() override { StartWithout(L""); }

    // The texts of the boxes in their order.
    static std::vector<std::wstring> Expected()
    {
        std::vector<std::wstring> texts;
        for (const Notification& each : notifications) {
            if (Has(GetParam(), each.function) && (each.onSmartphones || !IsSmartphoneSession())) {
                texts.emplace_back(each.text);
            }
        }
        return texts;
    }

    // A box of the start with this text, in front of nothing else: no window of the program's is there that
    // could be closed under it.
    HWND StartBox(const std::wstring& text) const
    {
        const HWND box = WaitFor([&] {
            const HWND shown = program->Dialog();
            return shown && BoxText(shown) == text && InFront(shown) ? shown : nullptr;
        });
        EXPECT_TRUE(box) << "shown is " << testing::PrintToString(BoxText(program->Dialog()));
        EXPECT_EQ(L"Quorvane", TextOf(box));
        EXPECT_FALSE(FindTopWindow({.className = mainWindowClass, .visible = false}));
        return box;
    }

    // Nothing is said any more.
    void ExpectFirstPage()
    {
        main = program->WaitForMainWindow();
        const HWND box = program->Dialog();
        ASSERT_TRUE(main) << program->WhyNoMainWindow() << "; a box says "
                          << testing::PrintToString(BoxText(box));
        ASSERT_TRUE(program->WaitForPage(TasksPage));
        ASSERT_TRUE(InFront(main));
        EXPECT_FALSE(program->Dialog());
    }

    void ExpectCleanEnd() const
    {
        ASSERT_NO_FATAL_FAILURE(ExpectEnd());
        const std::string text = log.Of(program->Process());
        EXPECT_NE(text.find("\nheap: 0 blocks"), std::string::npos) << text;
        EXPECT_EQ(text.find("FINDING"), std::string::npos) << text;
    }

    // The page of programs is shown; the Back key deletes what was typed, or does nothing.
    void ExpectBackKey() const
    {
        const HWND box = SearchBox(LauncherPage);
        const auto reads = [=](const wchar_t* text) { return WaitFor([=] { return TextOf(box) == text; }); };
        ASSERT_TRUE(WaitFor([&] { return FocusOf(main) == box; }));
        TypeText(L"a");
        ASSERT_TRUE(reads(L"a"));
        PressKey(VK_ESCAPE);
        TypeText(L"b");
        EXPECT_TRUE(reads(Has(GetParam(), backFunction) ? L"ab" : L"b"))
            << testing::PrintToString(TextOf(box));
    }

    void GoThroughThePages() const
    {
        int page = TasksPage;
        do {
            page = PageAfter(page, 1);
            PressKey(VK_RIGHT);
            ASSERT_TRUE(program->WaitForPage(page));
            if (page == LauncherPage) {
                ASSERT_NO_FATAL_FAILURE(ExpectBackKey());
            }
        } while (page != TasksPage);
        EXPECT_EQ(ListCount(program->List(SysInfoPage)), wholeRows - LostRows(GetParam()));
        Send(main, WM_SETTINGCHANGE, SPI_SETSIPINFO);
        Send(main, WM_COMMAND, RefreshCommand);
        EXPECT_GT(ListCount(program->List(TasksPage)), 0);
    }

    void ExitByTheMenu() const
    {
        ASSERT_TRUE(PressMenuKey());
        ParkStylus();
        MenuKeys(VK_UP);
        MenuKeys(VK_RETURN);
    }
};

int MissingFunctionTest::wholeRows = 0;

TEST_P(MissingFunctionTest, ToldOfItTheUserCanWorkAndEndIt)
{
    for (const std::wstring& text : Expected()) {
        const HWND box = StartBox(text);
        ASSERT_TRUE(box);
        PressKey(VK_RETURN);
        ASSERT_TRUE(WaitFor([=] { return !IsWindow(box); }));
    }
    ASSERT_NO_FATAL_FAILURE(ExpectFirstPage());
    ASSERT_NO_FATAL_FAILURE(GoThroughThePages());
    ASSERT_NO_FATAL_FAILURE(ExitByTheMenu());
    ExpectCleanEnd();
}

// What is open is closed by others: the boxes of the start, then the main window under one of its own.
TEST_P(MissingFunctionTest, ClosedUnderItsBoxesItEnds)
{
    for (const std::wstring& text : Expected()) {
        const HWND box = StartBox(text);
        ASSERT_TRUE(box);
        PostMessageW(box, WM_CLOSE, 0, 0);
        ASSERT_TRUE(WaitFor([=] { return !IsWindow(box); }));
    }
    ASSERT_NO_FATAL_FAILURE(ExpectFirstPage());
    program->Command(AboutCommand);
    ASSERT_TRUE(program->WaitForDialog());
    Send(main, WM_CLOSE);
    ExpectCleanEnd();
}

static std::vector<std::wstring> EachAndAll()
{
    std::vector<std::wstring> each = {AllLabels()};
    for (const LateExport* function : late::all) {
        each.push_back(LabelOf(*function));
    }
    return each;
}

static std::string NameOf(const testing::TestParamInfo<std::wstring>& info)
{
    std::string name = "All";
    if (info.index > 0) {
        name.clear();
        for (const wchar_t letter : info.param) {
            name += iswalnum(letter) ? static_cast<char>(letter) : '_';
        }
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Without, MissingFunctionTest, testing::ValuesIn(EachAndAll()), NameOf);
