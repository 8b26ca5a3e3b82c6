// The fixture of the tests of the hardware keys dialogs.
#include "tests/ui/keys/KeysTest.h"

int KeysTest::Open(const Step& step, const std::function<int(ProgramApp&)>& show)
{
    int result = -1;
    bool ran = false;
    InProgram([&](ProgramApp& app) {
        app.Later([&] {
            ASSERT_EQ(app.dialogs->Count(), 1u);
            Opened opened = {app, app.dialogs->At(0)->Window()};
            ran = true;
            step(opened);
            if (IsWindow(opened.dialog)) {
                SendMessageW(opened.dialog, WM_COMMAND, IDCANCEL, 0);
            }
        });
        result = show(app);
    });
    EXPECT_TRUE(ran);
    return result;
}

int KeysTest::OpenKeys(const Step& step)
{
    return Open(step, [](ProgramApp& app) { return CDialogKeys::Show(app.startPrograms); });
}

int KeysTest::OpenHomeKey(const Step& step)
{
    return Open(step, [this](ProgramApp& app) { return CDialogKeys_SP::Show(app.startPrograms, homeKey); });
}

RECT KeysTest::Place(const Opened& opened, int id)
{
    RECT rect = WindowRect(Control(opened, id));
    MapWindowPoints(nullptr, opened.dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void KeysTest::SelectKey(const Opened& opened, int row)
{
    SendMessageW(Control(opened, keyList), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(opened.dialog, WM_COMMAND, MAKEWPARAM(keyList, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Control(opened, keyList)));
}

void KeysTest::Choose(const Opened& opened, int list, int item)
{
    SendMessageW(Control(opened, list), CB_SETCURSEL, static_cast<WPARAM>(item), 0);
    SendMessageW(opened.dialog, WM_COMMAND, MAKEWPARAM(list, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Control(opened, list)));
}

void KeysTest::ChooseApplication(const Opened& opened, int list, const Step& inPicker)
{
    bool ran = false;
    opened.app.Later([&] {
        ran = true;
        ASSERT_EQ(opened.app.dialogs->Count(), 2u);
        Opened picker = {opened.app, opened.app.dialogs->At(1)->Window()};
        EXPECT_EQ(Text(picker.dialog), L"Select an application");
        inPicker(picker);
        if (IsWindow(picker.dialog)) {
            Run(picker, IDCANCEL);
        }
    });
    Choose(opened, list, 2);
    EXPECT_TRUE(ran);
}

std::vector<std::wstring> KeysTest::Items(const Opened& opened, int list)
{
    const bool isListBox = list == keyList;
    std::vector<std::wstring> items;
    const LRESULT count = SendMessageW(Control(opened, list), isListBox ? LB_GETCOUNT : CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; i++) {
        wchar_t text[300] = {};
        SendMessageW(Control(opened, list), isListBox ? LB_GETTEXT : CB_GETLBTEXT, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(text));
        items.emplace_back(text);
    }
    return items;
}

int KeysTest::Selected(const Opened& opened, int list)
{
    return static_cast<int>(
        SendMessageW(Control(opened, list), list == keyList ? LB_GETCURSEL : CB_GETCURSEL, 0, 0));
}

std::wstring KeysTest::Shown(const Opened& opened, int list)
{
    const int item = Selected(opened, list);
    return item < 0 ? L"" : Items(opened, list).at(static_cast<size_t>(item));
}

int KeysTest::LastItem(const Opened& opened, int list)
{
    return static_cast<int>(Items(opened, list).size()) - 1;
}
