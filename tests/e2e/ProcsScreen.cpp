// ProcsScreen: the program on its page of processes, used as a user does.
#include "tests/e2e/ProcsScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"
#include "tests/e2e/ShellSession.h"
#include "tests/support/TempFolder.h"

#include <tlhelp32.h>

#include <algorithm>

using namespace rig;

static constexpr int endProcessItem = 3;

ProcsScreen::ProcsScreen() : PageScreen(ProcsPage, CMD_SHOW_PROCS)
{
    SetProcessDPIAware();
}

std::vector<SessionProcess> ProcsScreen::Processes()
{
    std::vector<SessionProcess> processes;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(snapshot, &entry); more; more = Process32NextW(snapshot, &entry)) {
        processes.push_back({entry.th32ProcessID, entry.szExeFile, entry.cntThreads});
    }
    CloseHandle(snapshot);
    return processes;
}

std::optional<int> ProcsScreen::PlaceOf(DWORD process)
{
    const auto processes = Processes();
    const auto found = std::find_if(processes.begin(), processes.end(),
                                    [=](const SessionProcess& each) { return each.id == process; });
    return found == processes.end() ? std::nullopt
                                    : std::optional<int>(static_cast<int>(found - processes.begin()));
}

bool ProcsScreen::IsKnown(DWORD process)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, process);
    if (handle) {
        CloseHandle(handle);
    }
    return handle != nullptr;
}

std::wstring ProcsScreen::ActorNamed(const std::wstring& name)
{
    static const TempFolder folder;
    const std::wstring path = folder.Path(name.c_str());
    const std::wstring original = ProgramFolder() + L"\\actor.exe";
    EXPECT_TRUE(CopyFileW(original.c_str(), path.c_str(), FALSE)) << "error " << GetLastError();
    return path;
}

void ProcsScreen::RefreshExactly() const
{
    const auto ids = [] {
        std::vector<DWORD> all;
        for (const SessionProcess& each : Processes()) {
            all.push_back(each.id);
        }
        return all;
    };
    EXPECT_TRUE(WaitFor([&] {
        const auto before = ids();
        Do(CMD_REFRESH);
        return ids() == before;
    })) << "processes start and end all the time";
}

void ProcsScreen::SelectProcess(DWORD process) const
{
    RefreshExactly();
    const std::optional<int> row = PlaceOf(process);
    ASSERT_TRUE(row) << "there is no process " << process;
    Select(*row);
}

HWND ProcsScreen::AskToEnd(DWORD process, const std::wstring& name) const
{
    SelectProcess(process);
    Choose(endProcessItem);
    return WaitForBox(L"End process", L"End " + name + L"?");
}

HWND ProcsScreen::WaitForBox(const std::wstring& caption, const std::wstring& text)
{
    HWND shown = nullptr;
    const HWND box = WaitFor([&] {
        shown = program->Dialog();
        const bool fits = shown && TextOf(shown) == caption && BoxText(shown) == text &&
                          GetForegroundWindow() == shown && FocusOf(shown);
        return fits ? shown : nullptr;
    });
    EXPECT_TRUE(box) << "shown is " << testing::PrintToString(TextOf(shown)) << ": "
                     << testing::PrintToString(BoxText(shown));
    return box;
}

HWND ProcsScreen::WaitForNoAnswerBox()
{
    return WaitForBox(L"End process", L"Process does not respond to close message\n\nYou can terminate it.");
}

HWND ProcsScreen::WaitForWarningBox()
{
    return WaitForBox(L"Terminate process",
                      L"WARNING: Terminating a process can cause undesired results including loss of data "
                      L"and system instability. The process will not be given the chance to save its state "
                      L"or data. Terminate the process?");
}

void ProcsScreen::Answer(HWND box, WORD key)
{
    ASSERT_TRUE(box);
    PressKey(key);
    ASSERT_TRUE(WaitFor([=] { return !IsWindow(box); })) << "the key does not answer the box";
}

void ProcsScreen::ExpectUsable() const
{
    Send(Main(), WM_NULL); // past the command
    EXPECT_TRUE(WaitFor([&] { return GetForegroundWindow() == Main() && FocusOf(Main()) == list; }))
        << "the page has not got the focus";
    EXPECT_TRUE(IsWindowEnabled(Main()));
    EXPECT_FALSE(program->Dialog());
}
