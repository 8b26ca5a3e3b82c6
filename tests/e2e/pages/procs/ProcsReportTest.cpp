// The report on a process, compared with what the test asks the system itself, and the list of its windows.
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/WaitFor.h"

#include <tlhelp32.h>

#include <algorithm>

using namespace rig;

// Of less than a gigabyte. The hundredths are cut from a product of floating-point numbers, which for 0.29 is
// 28.
static std::wstring SizeText(DWORD bytes)
{
    const wchar_t* const units[] = {L"B", L"KB", L"MB"};
    int unit = 0;
    DWORD value = bytes;
    DWORD rest = 0;
    for (; unit < 2 && value >= 1024; unit++) {
        rest = value % 1024;
        value /= 1024;
    }
    int hundredths = static_cast<int>(static_cast<int>(rest / 1024.0 * 100.0 + 0.5) / 100.0 * 100.0);
    if (hundredths == 100) {
        hundredths = 0;
        value++;
    }
    wchar_t text[30];
    swprintf(text, 30, hundredths ? L"%u.%02d %ls" : L"%u%.0d %ls", static_cast<unsigned>(value), hundredths,
             units[unit]);
    return text;
}

static std::wstring ModulesOf(DWORD process)
{
    std::wstring text;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process);
    MODULEENTRY32W module = {};
    module.dwSize = sizeof(module);
    for (BOOL more = Module32FirstW(snapshot, &module); more; more = Module32NextW(snapshot, &module)) {
        text += std::wstring(L"Name: ") + module.szModule;
        text += std::wstring(L"\r\nExePath: ") + module.szExePath;
        text += L"\r\nGlobal usage count: " + std::to_wstring(module.GlblcntUsage);
        text += L"\r\nProcess ref. count: " + std::to_wstring(module.ProccntUsage);
        text += L"\r\nSize of the module: " + SizeText(module.modBaseSize) + L"\r\n\r\n";
    }
    CloseHandle(snapshot);
    return text;
}

class ProcsReportTest : public ProcsScreen
{
  protected:
    const ScreenFont normal{FW_NORMAL, 2};

    // What stands behind a label up to the end of the line.
    static std::wstring Field(const std::wstring& report, const std::wstring& label)
    {
        const size_t begin = report.find(L"\r\n" + label);
        if (begin == std::wstring::npos) {
            return L"(no " + label + L")";
        }
        const size_t value = begin + 2 + label.size();
        return report.substr(value, report.find(L"\r\n", value) - value);
    }

    static DWORD ThreadsOf(DWORD process) { return Processes()[PlaceOf(process).value_or(0)].threads; }

    std::wstring Report() const { return ReportBy(CMD_PROCESS_DETAILS); }

    void ExpectSizeInTheRow(const std::wstring& size) const
    {
        EXPECT_TRUE(RowShowsSize(list, ListMark(list), size, normal, 2)) << testing::PrintToString(size);
    }
};

TEST_F(ProcsReportTest, EveryLineIsAsTheSystemAnswers)
{
    for (const wchar_t* name : {L"actor.exe", L"100%s %d.exe"}) {
        const std::wstring path = ActorNamed(name);
        const Actor actor(path);
        ASSERT_TRUE(actor.Ready());
        SelectProcess(actor.Process());
        const std::wstring report = Report();
        const std::wstring memory = Field(report, L"Memory usage: ");
        const DWORD version = GetProcessVersion(actor.Process());
        EXPECT_NE(0u, version);
        wchar_t id[20];
        swprintf(id, 20, L"0x%08X", static_cast<unsigned>(actor.Process()));
        std::wstring expected = L"Full name:\r\n" + path;
        expected += std::wstring(L"\r\n\r\nProcess ID: ") + id;
        expected += L"\r\nMemory usage: " + memory;
        expected += L"\r\nThread count: " + std::to_wstring(ThreadsOf(actor.Process()));
        expected += L"\r\nRequired OS version: " + std::to_wstring(HIWORD(version)) + L"." +
                    std::to_wstring(LOWORD(version));
        expected += L"\r\n\r\nLIST OF MODULES:\r\n\r\n" + ModulesOf(actor.Process());
        EXPECT_EQ(expected, report);
        EXPECT_NE(std::wstring::npos, report.find(L"\r\n\r\nName: ntdll.dll\r\nExePath: "));
        ExpectSizeInTheRow(memory);
    }
}

TEST_F(ProcsReportTest, MemoryAndThreadsAreThoseOfTheLastRefresh)
{
    const Actor actor;
    FrontWithoutRefreshes();
    SelectProcess(actor.Process());
    const DWORD before = ThreadsOf(actor.Process());
    const std::wstring memory = Field(Report(), L"Memory usage: ");
    // The end of a dialog activates the program, which refreshes: the figures are then taken again.
    SelectProcess(actor.Process());
    actor.StartThreads(20);
    ASSERT_EQ(before + 20, ThreadsOf(actor.Process()));
    std::wstring report = Report();
    EXPECT_EQ(std::to_wstring(before), Field(report, L"Thread count: "));
    EXPECT_EQ(memory, Field(report, L"Memory usage: "));

    SelectProcess(actor.Process());
    report = Report();
    EXPECT_EQ(std::to_wstring(before + 20), Field(report, L"Thread count: "));
    EXPECT_NE(memory, Field(report, L"Memory usage: "));
    ExpectSizeInTheRow(Field(report, L"Memory usage: "));
}

TEST_F(ProcsReportTest, AProcessThatHasGoneIsReportedAsItWasListed)
{
    std::optional<Actor> actor(std::in_place);
    FrontWithoutRefreshes();
    SelectProcess(actor->Process());
    const DWORD id = actor->Process();
    const std::wstring threads = std::to_wstring(ThreadsOf(id));
    actor.reset();
    ASSERT_TRUE(WaitFor([=] { return !IsKnown(id); }));
    const std::wstring report = Report();
    wchar_t begin[60];
    swprintf(begin, 60, L"Full name:\r\n\r\n\r\nProcess ID: 0x%08X\r\nMemory usage: ",
             static_cast<unsigned>(id));
    EXPECT_TRUE(report.starts_with(begin)) << testing::PrintToString(report);
    const std::wstring end =
        L"\r\nThread count: " + threads + L"\r\nRequired OS version: 0.0\r\n\r\nLIST OF MODULES:\r\n\r\n";
    EXPECT_TRUE(report.ends_with(end + L"Can't get modules info.") ||
                report.ends_with(end + L"Module32First error."))
        << testing::PrintToString(report);
    ExpectUsable();
}

TEST_F(ProcsReportTest, TheWindowsListHasTheProcesssWindowsBelowItsName)
{
    const Actor other;
    const HWND stranger = other.Make({.title = L"Stranger"});
    const Actor actor(ActorNamed(L"100%s %d.exe"));
    const HWND plain = actor.Make({.title = L"Plain"});
    const std::vector<HWND> windows = {
        plain, actor.Make({.title = L"Hidden", .style = WS_POPUP}),
        actor.Make({.title = L"Owned", .owner = stranger}),
        actor.Make({.title = L"Child", .style = WS_CHILD | WS_VISIBLE, .owner = plain})};
    Front();
    SelectProcess(actor.Process());
    Choose(2);
    const HWND dialog = program->WaitForDialog();
    EXPECT_EQ(L"Windows list", TextOf(dialog));
    const HWND tree = FindDescendant(dialog, L"SysTreeView32", IDC_WINDOWS_TREE);
    ASSERT_TRUE(WaitFor([=] { return TreeItems(tree).size() > 4; }));
    const auto items = TreeItems(tree);
    EXPECT_EQ(L"100%s %d.exe", items[0].text);
    EXPECT_EQ(-1, items[0].data);
    for (HWND window : windows) {
        EXPECT_EQ(1, std::count_if(items.begin(), items.end(), [=](const TreeItem& item) {
                      return item.data == reinterpret_cast<LPARAM>(window);
                  }));
    }
    for (size_t i = 1; i < items.size(); i++) {
        EXPECT_EQ(actor.Process(), ProcessOf(reinterpret_cast<HWND>(items[i].data)))
            << testing::PrintToString(items[i].text);
    }
    EXPECT_TRUE(CloseDialog(dialog));
    ExpectUsable();
}
