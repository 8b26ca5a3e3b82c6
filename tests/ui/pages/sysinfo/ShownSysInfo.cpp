// The fixture of the tests of the system information page.
#include "tests/ui/pages/sysinfo/ShownSysInfo.h"

#include "framework/Gdi.h"
#include "tests/ui/pages/RowDrawing.h"

void ShownSysInfo::OnPage(const std::function<void(ProgramApp&)>& test)
{
    InProgram([&](ProgramApp& app) {
        app.ActivateView(2);
        test(app);
    });
}

void ShownSysInfo::Select(ProgramApp& app, int row)
{
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(List(app), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, row);
    SendMessageW(List(app), LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void ShownSysInfo::ExpectSelected(ProgramApp& app, int row)
{
    EXPECT_EQ(Mark(List(app)), row);
    EXPECT_EQ(RowsInState(List(app), LVIS_SELECTED), std::vector<int>{row});
    EXPECT_EQ(RowsInState(List(app), LVIS_FOCUSED), std::vector<int>{row});
}

int ShownSysInfo::TopRow(ProgramApp& app)
{
    return static_cast<int>(SendMessageW(List(app), LVM_GETTOPINDEX, 0, 0));
}

int ShownSysInfo::RowsPerPage(ProgramApp& app)
{
    return static_cast<int>(SendMessageW(List(app), LVM_GETCOUNTPERPAGE, 0, 0));
}

bool ShownSysInfo::IsVisibleRow(ProgramApp& app, int row)
{
    return row >= TopRow(app) && row < TopRow(app) + RowsPerPage(app);
}

int ShownSysInfo::MeasuredHeight(ProgramApp& app)
{
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = 102;
    EXPECT_EQ(SendMessageW(Page(app).Window(), WM_MEASUREITEM, IDC_LIST, reinterpret_cast<LPARAM>(&measure)),
              TRUE);
    return static_cast<int>(measure.itemHeight);
}

int ShownSysInfo::X(int pixels)
{
    return ScaledX(pixels);
}

int ShownSysInfo::Y(int pixels)
{
    return ScaledY(pixels);
}

int ShownSysInfo::LineHeight(HFONT font)
{
    const ScreenDC screen;
    const Selection selected(screen, font);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(screen, &metrics);
    return metrics.tmHeight + metrics.tmExternalLeading;
}
