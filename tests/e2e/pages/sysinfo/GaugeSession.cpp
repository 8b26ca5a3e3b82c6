// GaugeSession: the program on its system information page, with figures that the test makes up.
#include "tests/e2e/pages/sysinfo/GaugeSession.h"

#include "rig/Controls.h"
#include "tests/e2e/SessionProfile.h"

using namespace rig;

const wchar_t plainFigures[] = L"[memory]\nphysical = 67108864\nphysical-free = 34340864\n"
                               L"[storage]\n\\ = 134217728, 83886080\n"
                               L"[battery]\npercent = 87\nac = 1\n";
const Gauge plainMemory = {L"Physical memory", 48, L"31.25 MB", L"32.75 MB "};
const Gauge plainStorage = {L"Storage memory", 37, L"48 MB", L"80 MB "};
const Gauge plainBattery = {L"Battery", 87, L"87%", L"Charging "};

void GaugeSession::TearDown()
{
    UseSessionProfile();
}

void GaugeSession::MakeCard(const wchar_t* name) const
{
    device.MakeFolder(name);
}

void GaugeSession::RemoveCard(const wchar_t* name) const
{
    EXPECT_TRUE(RemoveDirectoryW(device.Path(name).c_str())) << "error " << GetLastError();
}

void GaugeSession::ShowWith(const std::wstring& profile, const std::wstring& folder)
{
    UseProfile(device.Path(L"profile.ini"), profile);
    Launch(L"", folder);
    ASSERT_TRUE(main);
    ASSERT_TRUE(InFront(main));
    program->Command(ShowSysInfoCommand);
    ASSERT_TRUE(program->WaitForPage(SysInfoPage));
    list = program->List(SysInfoPage);
}

void GaugeSession::Show(const std::wstring& cards, const std::wstring& figures, const std::wstring& folder)
{
    std::wstring profile = ScreenOfSession() + L"root = " + device.Folder() + L"\n";
    if (!cards.empty()) {
        profile += L"cards = " + cards + L"\n";
    }
    ShowWith(profile + figures, folder);
}

void GaugeSession::ShowReal()
{
    ShowWith(ScreenOfSession(), ProgramFolder());
}

bool GaugeSession::HasRows(int count) const
{
    return WaitFor([&] { return ListCount(list) == count; });
}

void GaugeSession::Reach(int row) const
{
    for (int top = ListTopRow(list); row < top || row >= top + ListRowsPerPage(list);) {
        PressKey(row < top ? VK_UP : VK_DOWN);
        ASSERT_TRUE(WaitFor([&] { return ListTopRow(list) != top; })) << "row " << row << " is not reached";
        top = ListTopRow(list);
    }
}

void GaugeSession::ExpectGauge(int row, const Gauge& gauge) const
{
    ASSERT_NO_FATAL_FAILURE(Reach(row));
    EXPECT_TRUE(look.IsAt(list, row, gauge))
        << "row " << row << " is not " << testing::PrintToString(gauge.title);
}

Picture GaugeSession::PictureOf(int row) const
{
    Picture::OfSettledScreen();
    return Picture::OfScreen(GaugeLook::PictureIn(ListRowOnScreen(list, row).value_or(RECT{})));
}

Picture GaugeSession::ListPicture() const
{
    Picture::OfSettledScreen();
    return Picture::OfScreen(ClientRectOnScreen(list));
}
