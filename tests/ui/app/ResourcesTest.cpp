// The compiled resources: texts, menus, soft keys, accelerators and dialogs as the program must show them.
#include "platform/ce.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

static HINSTANCE Module()
{
    return GetModuleHandleW(nullptr);
}

static std::wstring String(UINT id)
{
    wchar_t text[256] = {};
    const int length = LoadStringW(Module(), id, text, 256);
    return {text, static_cast<size_t>(length)};
}

// One line an item: "id text", "-" for a separator, "text {" and "}" around a submenu; "(grey)" behind what
// cannot be chosen.
static void Describe(HMENU menu, std::vector<std::wstring>& lines)
{
    for (int i = 0; i < GetMenuItemCount(menu); i++) {
        const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
        wchar_t text[100] = {};
        GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
        if (HMENU sub = GetSubMenu(menu, i)) {
            lines.push_back(std::wstring(text) + L" {");
            Describe(sub, lines);
            lines.emplace_back(L"}");
        } else if (state & MF_SEPARATOR) {
            lines.emplace_back(L"-");
        } else {
            lines.push_back(std::to_wstring(GetMenuItemID(menu, i)) + L" " + text +
                            (state & (MF_GRAYED | MF_DISABLED) ? L" (grey)" : L""));
        }
    }
}

using Lines = std::vector<std::wstring>;

static Lines Menu(UINT id)
{
    Lines lines;
    HMENU menu = LoadMenuW(Module(), MAKEINTRESOURCEW(id));
    EXPECT_NE(menu, nullptr) << id;
    Describe(menu, lines);
    DestroyMenu(menu);
    return lines;
}

// A menu whose one drop-down has these lines before the ones that every page has.
static Lines PageMenu(const Lines& head)
{
    Lines lines = {L"Menu {"};
    lines.insert(lines.end(), head.begin(), head.end());
    const Lines tail = {L"-",
                        L"View {",
                        L"32796 Runnig apps",
                        L"32803 Start",
                        L"32797 System info",
                        L"32798 Processes",
                        L"}",
                        L"-",
                        L"More {",
                        L"32814 Hardware keys",
                        L"-",
                        L"32771 About",
                        L"}",
                        L"-",
                        L"32773 Exit",
                        L"}"};
    lines.insert(lines.end(), tail.begin(), tail.end());
    return lines;
}

static std::vector<uint16_t> MenuBar(UINT id)
{
    HRSRC resource = FindResourceW(Module(), MAKEINTRESOURCEW(id), RT_RCDATA);
    EXPECT_NE(resource, nullptr) << id;
    if (!resource) {
        return {};
    }
    const auto* words = static_cast<const uint16_t*>(LockResource(LoadResource(Module(), resource)));
    const DWORD size = SizeofResource(Module(), resource);
    EXPECT_EQ(size % 2, 0u);
    return {words, words + size / 2};
}

struct Key
{
    WORD key;
    WORD command;
    bool operator==(const Key& other) const { return key == other.key && command == other.command; }
};

static std::vector<Key> Accelerators(UINT id)
{
    HACCEL table = LoadAcceleratorsW(Module(), MAKEINTRESOURCEW(id));
    EXPECT_NE(table, nullptr) << id;
    ACCEL entries[30] = {};
    const int count = CopyAcceleratorTableW(table, entries, 30);
    std::vector<Key> keys;
    for (int i = 0; i < count; i++) {
        EXPECT_EQ(entries[i].fVirt & ~0x80, FVIRTKEY) << "a virtual key without shift keys";
        keys.push_back({entries[i].key, entries[i].cmd});
    }
    return keys;
}

static void PrintTo(const Key& key, std::ostream* out)
{
    *out << "key " << key.key << " -> " << key.command;
}

TEST(ResourcesTest, TheStringTable)
{
    EXPECT_EQ(String(1), L"Quorvane");
    EXPECT_EQ(String(3), L"Hide");
    EXPECT_EQ(String(4), L"Menu");
    EXPECT_EQ(String(5), L" ");
    EXPECT_EQ(String(6), L"Done");
    EXPECT_EQ(String(103), L"Ok");
    EXPECT_EQ(String(203), L"Hide");
    EXPECT_EQ(String(204), L"Menu");
    EXPECT_EQ(String(205), L" ");
    EXPECT_EQ(String(206), L"Done");
    EXPECT_EQ(String(207), L"Select");
    EXPECT_EQ(String(208), L"Cancel");
}

TEST(ResourcesTest, TheMenuOfTheRunningApplications)
{
    EXPECT_EQ(Menu(134),
              PageMenu({L"32801 Switch to appliction", L"32800 Close application", L"-", L"32816 Close all",
                        L"-", L"32799 Application info", L"32792 Windows list", L"-", L"32793 Refresh"}));
}

TEST(ResourcesTest, TheMenuOfTheSystemInformation)
{
    EXPECT_EQ(Menu(102),
              PageMenu({L"32785 Memory information", L"32786 Battery information", L"-", L"32793 Refresh"}));
}

TEST(ResourcesTest, TheMenuOfTheLauncher)
{
    EXPECT_EQ(Menu(136),
              PageMenu({L"32801 Start application", L"32799 Application info", L"-", L"32793 Refresh"}));
}

TEST(ResourcesTest, TheMenuOfTheProcesses)
{
    EXPECT_EQ(Menu(132), PageMenu({L"32790 Process details", L"32792 Windows list", L"-",
                                   L"32791 End process", L"-", L"32793 Refresh"}));
}

TEST(ResourcesTest, EveryPagesMenuEndsTheSameWay)
{
    const Lines tail = PageMenu({});
    for (const UINT id : {134u, 102u, 136u, 132u}) {
        const Lines menu = Menu(id);
        ASSERT_GT(menu.size(), tail.size()) << id;
        EXPECT_EQ(menu.front(), L"Menu {");
        EXPECT_EQ(Lines(menu.end() - static_cast<ptrdiff_t>(tail.size() - 1), menu.end()),
                  Lines(tail.begin() + 1, tail.end()))
            << id;
        EXPECT_EQ(menu[menu.size() - tail.size()], L"32793 Refresh") << id;
    }
}

TEST(ResourcesTest, TheMenuOfTheWindowsList)
{
    EXPECT_EQ(Menu(173), (Lines{L"Menu {", L"32802 Window info", L"}"}));
}

using Words = std::vector<uint16_t>;

// Seven words a button: image (0xFFFE: none), command, state (4: enabled), style (16 sizes itself, 8 drops
// down), string, 0, submenu (0xFFFF: none).
TEST(ResourcesTest, TheSoftKeysOfThePages)
{
    const struct
    {
        UINT bar;
        uint16_t menu;
    } pages[] = {{172, 134}, {111, 102}, {174, 136}, {171, 132}};
    for (const auto& page : pages) {
        EXPECT_EQ(MenuBar(page.bar), (Words{page.menu, 2, 0xFFFE, 112, 4, 0x10, 203, 0, 0xFFFF, //
                                            0xFFFE, 113, 4, 0x18, 204, 0, 0}))
            << page.bar;
    }
}

TEST(ResourcesTest, TheSoftKeysOfTheDialogs)
{
    EXPECT_EQ(MenuBar(170), (Words{0, 2, 0xFFFE, 1, 4, 0x10, 103, 0, 0xFFFF, //
                                   0xFFFE, 2, 4, 0x10, 205, 0, 0xFFFF}));
    EXPECT_EQ(MenuBar(173), (Words{173, 2, 0xFFFE, 1, 4, 0x10, 206, 0, 0xFFFF, //
                                   0xFFFE, 113, 4, 0x18, 204, 0, 0}));
    EXPECT_EQ(MenuBar(177), (Words{0, 2, 0xFFFE, 1, 4, 0x10, 207, 0, 0xFFFF, //
                                   0xFFFE, 2, 4, 0x10, 208, 0, 0xFFFF}));
    EXPECT_EQ(MenuBar(169), (Words{0, 2, 0xFFFE, 1, 4, 0x10, 103, 0, 0xFFFF, //
                                   0xFFFE, 2, 4, 0x10, 208, 0, 0xFFFF}));
}

TEST(ResourcesTest, TheKeysOfTheProgram)
{
    EXPECT_EQ(Accelerators(2), (std::vector<Key>{{VK_F1, 112}, {VK_F2, 113}}));
}

TEST(ResourcesTest, TheKeysOfThePages)
{
    const std::vector<Key> ring = {{VK_LEFT, 32774}, {VK_RIGHT, 32775}};
    EXPECT_EQ(Accelerators(33593), ring);
    EXPECT_EQ(Accelerators(33595), ring);
    EXPECT_EQ(Accelerators(33594),
              (std::vector<Key>{{VK_LEFT, 32774}, {VK_RIGHT, 32775}, {VK_UP, 32787}, {VK_DOWN, 32788}}));
}

// None that a letter is typed or erased with.
TEST(ResourcesTest, TheKeysOfTheLauncher)
{
    EXPECT_EQ(Accelerators(137), (std::vector<Key>{{VK_LEFT, 32774},
                                                   {VK_RIGHT, 32775},
                                                   {VK_UP, 32787},
                                                   {VK_DOWN, 32788},
                                                   {VK_END, 32805},
                                                   {VK_HOME, 32806},
                                                   {VK_NEXT, 32807},
                                                   {VK_PRIOR, 32808},
                                                   {VK_RETURN, 114}}));
}

TEST(ResourcesTest, TheKeysOfTheInformationDialog)
{
    EXPECT_EQ(
        Accelerators(115),
        (std::vector<Key>{
            {VK_DOWN, 116}, {VK_LEFT, 117}, {VK_RIGHT, 118}, {VK_TAB, 119}, {VK_UP, 120}, {VK_RETURN, 121}}));
}

TEST(ResourcesTest, TheKeyOfTheHardwareKeysDialogs)
{
    EXPECT_EQ(Accelerators(143), (std::vector<Key>{{VK_RETURN, 114}}));
}

TEST(ResourcesTest, TheProgramHasAnIcon)
{
    EXPECT_NE(LoadIconW(Module(), MAKEINTRESOURCEW(101)), nullptr);
}

struct Template
{
    HWND dialog;
    explicit Template(UINT id)
        : dialog(CreateDialogParamW(Module(), MAKEINTRESOURCEW(id), nullptr, nullptr, 0))
    {}
    ~Template() { DestroyWindow(dialog); }
    HWND OnlyControl() const
    {
        HWND control = GetWindow(dialog, GW_CHILD);
        EXPECT_EQ(GetWindow(control, GW_HWNDNEXT), nullptr);
        return control;
    }
};

static std::wstring ClassOf(HWND window)
{
    wchar_t name[100] = {};
    GetClassNameW(window, name, 100);
    return name;
}

TEST(ResourcesTest, TheInformationDialogIsOneReadOnlyText)
{
    const Template information(125);
    HWND text = information.OnlyControl();
    EXPECT_EQ(GetDlgCtrlID(text), 126);
    EXPECT_EQ(ClassOf(text), L"Edit");
    EXPECT_EQ(GetWindowLongPtrW(text, GWL_STYLE) & (ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_VISIBLE),
              ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_VISIBLE);
    EXPECT_EQ(GetWindowLongPtrW(text, GWL_STYLE) & (WS_HSCROLL | ES_AUTOHSCROLL), 0) << "long lines wrap";
}

TEST(ResourcesTest, TheWindowsListIsOneTree)
{
    const Template windows(133);
    wchar_t title[100] = {};
    GetWindowTextW(windows.dialog, title, 100);
    EXPECT_STREQ(title, L"Windows list");
    HWND tree = windows.OnlyControl();
    EXPECT_EQ(GetDlgCtrlID(tree), 1000);
    EXPECT_EQ(ClassOf(tree), L"SysTreeView32");
}
