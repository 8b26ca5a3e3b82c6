// The templates of the hardware keys dialogs, in dialog units.
#include "platform/ce.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

struct Control
{
    int id;
    std::wstring className;
    std::wstring text;
    std::vector<int> place; // x, y, width, height
    DWORD style;
};

// A dialog template as it lies in the executable: words, and records that begin at every fourth byte.
class TemplateReader
{
    const uint8_t* start = nullptr;
    size_t at = 0;

    uint16_t Word()
    {
        uint16_t word = 0;
        memcpy(&word, start + at, sizeof word);
        at += sizeof word;
        return word;
    }
    DWORD Double()
    {
        const DWORD low = Word();
        return low | static_cast<DWORD>(Word()) << 16;
    }
    std::vector<int> Place()
    {
        std::vector<int> four;
        for (int i = 0; i < 4; i++) {
            four.push_back(static_cast<int16_t>(Word()));
        }
        return four;
    }
    // A text, or a class by its number.
    std::wstring Name()
    {
        std::wstring name;
        uint16_t letter = Word();
        if (letter == 0xFFFF) {
            const uint16_t number = Word();
            return number == 0x82   ? L"STATIC"
                   : number == 0x83 ? L"LISTBOX"
                   : number == 0x85 ? L"COMBOBOX"
                                    : L"?";
        }
        for (; letter != 0; letter = Word()) {
            name += static_cast<wchar_t>(letter);
        }
        return name;
    }

  public:
    std::vector<int> place;
    std::wstring title;
    std::wstring font;
    std::vector<Control> controls;

    explicit TemplateReader(UINT id)
    {
        HINSTANCE module = GetModuleHandleW(nullptr);
        HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG);
        start = static_cast<const uint8_t*>(LockResource(LoadResource(module, resource)));
        const DWORD style = Double();
        Double();
        const int count = Word();
        place = Place();
        Name();
        Name();
        title = Name();
        if (style & DS_SETFONT) {
            font = std::to_wstring(Word());
            font += L" " + Name();
        }
        for (int i = 0; i < count; i++) {
            at = (at + 3) & ~size_t{3};
            Control control = {};
            control.style = Double();
            Double();
            control.place = Place();
            control.id = static_cast<int16_t>(Word());
            control.className = Name();
            control.text = Name();
            at += Word();
            controls.push_back(control);
        }
    }
};

} // namespace

static void ExpectControl(const Control& control, int id, const wchar_t* className, const wchar_t* text,
                          const std::vector<int>& place)
{
    EXPECT_EQ(control.id, id);
    EXPECT_EQ(control.className, className) << id;
    EXPECT_EQ(control.text, text) << id;
    EXPECT_EQ(control.place, place) << id;
    EXPECT_EQ(control.style & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE)) << id;
}

TEST(KeysTemplatesTest, ThePocketPcsHasTheButtonsAndTwoChoices)
{
    const TemplateReader dialog(142);
    EXPECT_EQ(dialog.title, L"Hardware keys");
    EXPECT_EQ(dialog.font, L"8 Tahoma");
    EXPECT_EQ(std::vector<int>(dialog.place.begin() + 2, dialog.place.end()), (std::vector<int>{186, 94}));
    ASSERT_EQ(dialog.controls.size(), 5u);
    ExpectControl(dialog.controls[0], 1005, L"LISTBOX", L"", {7, 7, 172, 49});
    ExpectControl(dialog.controls[1], 1006, L"COMBOBOX", L"", {34, 57, 145, 30});
    ExpectControl(dialog.controls[2], 1007, L"COMBOBOX", L"", {34, 74, 145, 30});
    ExpectControl(dialog.controls[3], 1008, L"STATIC", L"Press:", {7, 60, 24, 8});
    ExpectControl(dialog.controls[4], 1009, L"STATIC", L"Hold:", {7, 76, 25, 8});
    EXPECT_EQ(dialog.controls[0].style & (LBS_NOTIFY | LBS_SORT | WS_VSCROLL | WS_TABSTOP),
              static_cast<DWORD>(LBS_NOTIFY | WS_VSCROLL | WS_TABSTOP));
    for (const int label : {3, 4}) {
        EXPECT_EQ(dialog.controls[static_cast<size_t>(label)].style & SS_TYPEMASK,
                  static_cast<DWORD>(SS_RIGHT));
    }
}

TEST(KeysTemplatesTest, TheSmartphonesHasOneChoice)
{
    const TemplateReader dialog(144);
    EXPECT_EQ(dialog.title, L"Hardware keys");
    EXPECT_EQ(std::vector<int>(dialog.place.begin() + 2, dialog.place.end()), (std::vector<int>{186, 41}));
    ASSERT_EQ(dialog.controls.size(), 2u);
    ExpectControl(dialog.controls[0], 1006, L"COMBOBOX", L"", {7, 20, 171, 30});
    ExpectControl(dialog.controls[1], -1, L"STATIC", L"Home key hold action:", {8, 9, 85, 8});
    EXPECT_EQ(dialog.controls[1].style & SS_TYPEMASK, static_cast<DWORD>(SS_LEFT));
}

TEST(KeysTemplatesTest, TheActionsCannotBeTypedAndKeepTheirOrder)
{
    std::vector<Control> lists = TemplateReader(142).controls;
    lists.push_back(TemplateReader(144).controls.at(0));
    for (const size_t each : {1u, 2u, 5u}) {
        EXPECT_EQ(lists.at(each).style & (3 | CBS_SORT | WS_TABSTOP),
                  static_cast<DWORD>(CBS_DROPDOWNLIST | WS_TABSTOP));
    }
}
