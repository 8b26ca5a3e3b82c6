// The fixture of the tests of the system information page.
#include "tests/ui/pages/sysinfo/SysInfoPageTest.h"

#include "framework/Gdi.h"

void SysInfoPageTest::OnPage(const std::function<void(ProgramApp&)>& test)
{
    InProgram([&](ProgramApp& app) {
        app.ActivateView(2);
        test(app);
    });
}

void SysInfoPageTest::Select(ProgramApp& app, int row)
{
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(List(app), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, row);
    SendMessageW(List(app), LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void SysInfoPageTest::ExpectSelected(ProgramApp& app, int row)
{
    EXPECT_EQ(Mark(List(app)), row);
    EXPECT_EQ(RowsInState(List(app), LVIS_SELECTED), std::vector<int>{row});
    EXPECT_EQ(RowsInState(List(app), LVIS_FOCUSED), std::vector<int>{row});
}

int SysInfoPageTest::TopRow(ProgramApp& app)
{
    return static_cast<int>(SendMessageW(List(app), LVM_GETTOPINDEX, 0, 0));
}

int SysInfoPageTest::RowsPerPage(ProgramApp& app)
{
    return static_cast<int>(SendMessageW(List(app), LVM_GETCOUNTPERPAGE, 0, 0));
}

bool SysInfoPageTest::IsVisibleRow(ProgramApp& app, int row)
{
    return row >= TopRow(app) && row < TopRow(app) + RowsPerPage(app);
}

static int Scaled(int pixels, int index)
{
    const ScreenDC screen;
    return (pixels * GetDeviceCaps(screen, index) + 48) / 96;
}

int SysInfoPageTest::X(int pixels)
{
    return Scaled(pixels, LOGPIXELSX);
}

int SysInfoPageTest::Y(int pixels)
{
    return Scaled(pixels, LOGPIXELSY);
}

int SysInfoPageTest::LineHeight(HFONT font)
{
    const ScreenDC screen;
    const Selection selected(screen, font);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(screen, &metrics);
    return metrics.tmHeight + metrics.tmExternalLeading;
}
