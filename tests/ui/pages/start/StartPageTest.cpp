// The fixture of the tests of the launcher page.
#include "tests/ui/pages/start/StartPageTest.h"

int StartPageTest::OnPage(const std::function<void(ProgramApp&)>& test)
{
    return InProgram([&](ProgramApp& app) {
        app.ActivateView(3);
        test(app);
    });
}

void StartPageTest::AddPrograms(const Names& names)
{
    for (const std::wstring& name : names) {
        menu.Add(name + L".lnk", L"\\Windows\\" + name + L".exe");
    }
}

RECT StartPageTest::OnPageRect(ProgramApp& app, HWND control)
{
    RECT rect = WindowRect(control);
    MapWindowPoints(nullptr, Page(app).Window(), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

int StartPageTest::Count(ProgramApp& app)
{
    return static_cast<int>(SendMessageW(List(app), LVM_GETITEMCOUNT, 0, 0));
}

StartPageTest::Names StartPageTest::Listed(ProgramApp& app)
{
    EXPECT_EQ(Page(app).ProgramCount(), static_cast<uint32_t>(Count(app)));
    Names names;
    for (uint32_t row = 0; row < Page(app).ProgramCount(); row++) {
        names.emplace_back(Page(app).Program(row).name.Buffer());
    }
    return names;
}

void StartPageTest::Search(ProgramApp& app, const std::wstring& text)
{
    SetWindowTextW(Box(app), text.c_str());
}

void StartPageTest::Type(ProgramApp& app, const std::wstring& text)
{
    for (const wchar_t character : text) {
        SendMessageW(Box(app), WM_CHAR, character, 1);
    }
}

void StartPageTest::Select(ProgramApp& app, int row)
{
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(List(app), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, row);
}

void StartPageTest::ExpectSelected(ProgramApp& app, int row)
{
    HWND list = List(app);
    EXPECT_EQ(Mark(list), row);
    EXPECT_EQ(RowsInState(list, LVIS_SELECTED), Rows{row});
    EXPECT_EQ(RowsInState(list, LVIS_FOCUSED), Rows{row});
    const LRESULT top = SendMessageW(list, LVM_GETTOPINDEX, 0, 0);
    EXPECT_LE(top, row);
    EXPECT_GT(top + SendMessageW(list, LVM_GETCOUNTPERPAGE, 0, 0), row);
    EXPECT_EQ(GetFocus(), Box(app));
}
