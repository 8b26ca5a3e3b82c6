// The fixture of the tests of the application picker.
#include "tests/ui/dialogs/PickerTest.h"

void PickerTest::AddPrograms(const std::vector<std::wstring>& names)
{
    for (const std::wstring& name : names) {
        menu.Add(name + L".lnk", L"\\Windows\\" + name + L".exe");
    }
}

bool PickerTest::Open(const std::function<void(Opened&)>& step)
{
    bool result = false;
    bool ran = false;
    InProgram([&](ProgramApp& app) {
        app.Later([&] {
            ASSERT_EQ(app.dialogs->Count(), 1u);
            HWND dialog = app.dialogs->At(0)->Window();
            Opened opened = {app, dialog, GetDlgItem(dialog, IDC_LIST)};
            ran = true;
            step(opened);
            SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        CStr path(L"before");
        result = CDialogSelectApp::Pick(app.startPrograms, path);
        chosen = path.Buffer();
        EXPECT_EQ(app.dialogs->Count(), 0u);
    });
    EXPECT_TRUE(ran);
    return result;
}

int PickerTest::Count(const Opened& opened)
{
    return static_cast<int>(SendMessageW(opened.list, LVM_GETITEMCOUNT, 0, 0));
}

void PickerTest::Select(const Opened& opened, int row)
{
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(opened.list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    SendMessageW(opened.list, LVM_SETSELECTIONMARK, 0, row);
}
