// The fixture of the tests of the processes page.
#include "tests/ui/pages/procs/ProcsTest.h"

int ProcsTest::OnPage(const std::function<void(ProgramApp&)>& test)
{
    return InProgram([&](ProgramApp& app) {
        app.ActivateView(4);
        test(app);
    });
}

void ProcsTest::AddProcesses(int count)
{
    for (int i = 0; i < count; i++) {
        const size_t number = system.processes.size();
        const std::wstring name = L"p" + std::to_wstring(number + 1) + L".exe";
        system.Add(firstId + static_cast<DWORD>(number), name, L"\\Windows\\" + name);
    }
}

int ProcsTest::Count(ProgramApp& app)
{
    return static_cast<int>(SendMessageW(List(app), LVM_GETITEMCOUNT, 0, 0));
}

ProcsTest::Names ProcsTest::Listed(ProgramApp& app)
{
    Names names;
    for (uint32_t row = 0; row < Page(app).ProcessCount(); row++) {
        names.emplace_back(Page(app).Process(row).name.Buffer());
    }
    return names;
}

void ProcsTest::Select(ProgramApp& app, int row)
{
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(List(app), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, row);
}

void ProcsTest::ExpectSelected(ProgramApp& app, int row)
{
    EXPECT_EQ(Mark(List(app)), row);
    EXPECT_EQ(RowsInState(List(app), LVIS_SELECTED), Rows{row});
    EXPECT_EQ(RowsInState(List(app), LVIS_FOCUSED), Rows{row});
}
