// The plain-text report on a window.
#include "dialogs/WindowReport.h"
#include "tests/unit/ScriptedWindows.h"

#include <gtest/gtest.h>

static std::wstring Report(HWND window)
{
    CStr report;
    AppendWindowReport(report, window);
    return report.Buffer();
}

static std::wstring Styles(uint32_t style)
{
    CStr report;
    AppendStyleNames(report, style);
    return report.Buffer();
}

static std::wstring ExtendedStyles(uint32_t style)
{
    CStr report;
    AppendExtendedStyleNames(report, style);
    return report.Buffer();
}

TEST(WindowReportTest, AWindowWithoutOwnerHasNoOwnerSection)
{
    ScriptedWindows script;
    script.paths[42] = L"\\Windows\\pword.exe";
    HWND window =
        script.Add({L"Word", L"PWord_MainWnd", nullptr, true, true, 0x10000000, 0, 42, {0, 26, 240, 294}});
    EXPECT_EQ(Report(window), L"Executable:\r\n\\Windows\\pword.exe"
                              L"\r\n\r\nWindow name: Word"
                              L"\r\nClass name: PWord_MainWnd"
                              L"\r\nWindow handle: 0x7C0010"
                              L"\r\n\r\nVisible: Yes\r\nEnabled: Yes"
                              L"\r\n\r\nStyles: \r\n - WS_VISIBLE\r\n - WS_OVERLAPPED"
                              L"\r\n\r\nExStyles: "
                              L"\r\n\r\nWindow rect: (0,26) - (240,294)");
    EXPECT_EQ(script.askedPaths, std::vector<DWORD>{42});
    EXPECT_EQ(script.longestText, 260);
}

TEST(WindowReportTest, AnOwnerThatIsTheTopmostIsNamedOnce)
{
    ScriptedWindows script;
    HWND owner = script.Add({L"Owner", L"O"});
    HWND window = script.Add({L"Owned", L"W", owner, false, false, 0, 0x8, 7, {-5, -10, 3, 0}});
    EXPECT_EQ(Report(window), L"Executable:\r\n"
                              L"\r\n\r\nWindow name: Owned"
                              L"\r\nClass name: W"
                              L"\r\nWindow handle: 0x7C0012"
                              L"\r\n\r\nOwner window: 0x7C0010\r\nName: Owner"
                              L"\r\n\r\nVisible: No\r\nEnabled: No"
                              L"\r\n\r\nStyles: \r\n - WS_OVERLAPPED"
                              L"\r\n\r\nExStyles: \r\n - WS_EX_TOPMOST"
                              L"\r\n\r\nWindow rect: (-5,-10) - (3,0)");
}

TEST(WindowReportTest, ATopmostOwnerThatIsAnotherIsNamedToo)
{
    ScriptedWindows script;
    HWND top = script.Add({L"Top", L"T"});
    HWND middle = script.Add({L"", L"M", top});
    HWND owner = script.Add({L"Owner", L"O", middle});
    const std::wstring report = Report(script.Add({L"Owned", L"W", owner}));
    const std::wstring owners = L"\r\nWindow handle: 0x7C0016"
                                L"\r\n\r\nOwner window: 0x7C0014\r\nName: Owner"
                                L"\r\nTopmost owner: 0x7C0010\r\nName: Top"
                                L"\r\n\r\nVisible: Yes";
    EXPECT_NE(report.find(owners), std::wstring::npos) << report;
    const std::wstring middleReport = Report(owner);
    EXPECT_NE(middleReport.find(
                  L"\r\n\r\nOwner window: 0x7C0012\r\nName: \r\nTopmost owner: 0x7C0010\r\nName: Top"),
              std::wstring::npos);
}

// Every style line with its bits, in the order of the report.
static const struct
{
    uint32_t bits;
    const wchar_t* line;
} styleLines[] =
    {
        {0x40000000, L"\r\n - WS_CHILD"},        {0x10000000, L"\r\n - WS_VISIBLE"},
        {0x08000000, L"\r\n - WS_DISABLED"},     {0x00020000, L"\r\n - WS_GROUP"},
        {0x00010000, L"\r\n - WS_TABSTOP"},      {0xFFFFFFFF, L"\r\n - WS_OVERLAPPED"},
        {0x04000000, L"\r\n - WS_CLIPSIBLINGS"}, {0x02000000, L"\r\n - WS_CLIPCHILDREN"},
        {0x00C00000, L"\r\n - WS_CAPTION"},      {0x00800000, L"\r\n - WS_BORDER"},
        {0x00400000, L"\r\n - WS_DLGFRAME"},     {0x00200000, L"\r\n - WS_VSCROLL"},
        {0x00100000, L"\r\n - WS_HSCROLL"},      {0x00080000, L"\r\n - WS_SYSMENU"},
        {0x00040000, L"\r\n - WS_THICKFRAME"},   {0x00020000, L"\r\n - WS_MAXIMIZEBOX"},
        {0x00010000, L"\r\n - WS_MINIMIZEBOX"},  {0x80000000, L"\r\n - WS_POPUP"},
},
  extendedStyleLines[] = {
      {0x08000000, L"\r\n - WS_EX_NOACTIVATE"},   {0x00000001, L"\r\n - WS_EX_DLGMODALFRAME"},
      {0x00000008, L"\r\n - WS_EX_TOPMOST"},      {0x00000100, L"\r\n - WS_EX_WINDOWEDGE"},
      {0x00000200, L"\r\n - WS_EX_CLIENTEDGE"},   {0x00000400, L"\r\n - WS_EX_CONTEXTHELP"},
      {0x00001000, L"\r\n - WS_EX_RIGHT"},        {0x00004000, L"\r\n - WS_EX_LEFTSCROLLBAR"},
      {0x00020000, L"\r\n - WS_EX_STATICEDGE"},   {0x00100000, L"\r\n - WS_EX_NOINHERITLAYOUT"},
      {0x00400000, L"\r\n - WS_EX_LAYOUTRTL"},    {0x00000300, L"\r\n - WS_EX_OVERLAPPEDWINDOW"},
      {0x80000000, L"\r\n - WS_EX_CAPTIONOKBTN"}, {0x40000000, L"\r\n - WS_EX_NODRAG"},
      {0x20000000, L"\r\n - WS_EX_ABOVESTARTUP"}, {0x10000000, L"\r\n - WS_EX_INK"},
      {0x04000000, L"\r\n - WS_EX_NOANIMATION"},
};

TEST(WindowReportTest, EveryStyleBitHasItsLines)
{
    for (uint32_t bit = 1; bit != 0; bit <<= 1) {
        std::wstring expected;
        for (const auto& each : styleLines) {
            expected += each.bits == 0xFFFFFFFF || (each.bits & bit) ? each.line : L"";
        }
        EXPECT_EQ(Styles(bit), expected) << std::hex << bit;
    }
}

TEST(WindowReportTest, EveryExtendedStyleBitHasItsLines)
{
    for (uint32_t bit = 1; bit != 0; bit <<= 1) {
        std::wstring expected;
        for (const auto& each : extendedStyleLines) {
            expected += each.bits & bit ? each.line : L"";
        }
        EXPECT_EQ(ExtendedStyles(bit), expected) << std::hex << bit;
    }
}

TEST(WindowReportTest, AllLinesComeInTheirOrder)
{
    std::wstring styles;
    for (const auto& each : styleLines) {
        styles += each.line;
    }
    EXPECT_EQ(Styles(0xFFFFFFFF), styles);
    std::wstring extended;
    for (const auto& each : extendedStyleLines) {
        extended += each.line;
    }
    EXPECT_EQ(ExtendedStyles(0xFFFFFFFF), extended);
}

TEST(WindowReportTest, TheUsualStylesReadAsTheyShould)
{
    EXPECT_EQ(Styles(0), L"\r\n - WS_OVERLAPPED");
    EXPECT_EQ(Styles(0x00800000), L"\r\n - WS_OVERLAPPED\r\n - WS_CAPTION\r\n - WS_BORDER");
    EXPECT_EQ(Styles(0x00400000), L"\r\n - WS_OVERLAPPED\r\n - WS_CAPTION\r\n - WS_DLGFRAME");
    EXPECT_EQ(Styles(0x80000000), L"\r\n - WS_OVERLAPPED\r\n - WS_POPUP");
    EXPECT_EQ(
        Styles(0x00CF0000),
        L"\r\n - WS_GROUP\r\n - WS_TABSTOP\r\n - WS_OVERLAPPED\r\n - WS_CAPTION\r\n - WS_BORDER"
        L"\r\n - WS_DLGFRAME\r\n - WS_SYSMENU\r\n - WS_THICKFRAME\r\n - WS_MAXIMIZEBOX\r\n - WS_MINIMIZEBOX");
    EXPECT_EQ(ExtendedStyles(0), L"");
    EXPECT_EQ(ExtendedStyles(0x100), L"\r\n - WS_EX_WINDOWEDGE\r\n - WS_EX_OVERLAPPEDWINDOW");
}

TEST(WindowReportTest, SomeExtendedStylesHaveNoLine)
{
    for (const uint32_t bit : {0x80u, 0x40000u, 0x80000u, 0x2u, 0x10u}) {
        EXPECT_EQ(ExtendedStyles(bit), L"") << std::hex << bit;
    }
}

TEST(WindowReportTest, TheStylesAreTheWindowsOwn)
{
    ScriptedWindows script;
    HWND owner = script.Add({L"Owner", L"O", nullptr, true, true, 0x00200000, 0x400});
    const std::wstring report =
        Report(script.Add({L"Owned", L"W", owner, true, true, static_cast<LONG>(0x80000000), 0x1}));
    EXPECT_NE(report.find(L"\r\n\r\nStyles: \r\n - WS_OVERLAPPED\r\n - WS_POPUP"
                          L"\r\n\r\nExStyles: \r\n - WS_EX_DLGMODALFRAME\r\n\r\nWindow rect: (0,0) - (0,0)"),
              std::wstring::npos)
        << report;
}

TEST(WindowReportTest, TextsAreTakenLetterForLetter)
{
    ScriptedWindows script;
    const std::wstring text = L"100% \"sure\" & %s%n%x Проводник メモ帳 \r\n";
    script.paths[42] = L"\\%d & 日本\\x.exe";
    const std::wstring report = Report(script.Add({text, text, nullptr, true, true, 0, 0, 42}));
    EXPECT_EQ(report.find(L"Executable:\r\n\\%d & 日本\\x.exe\r\n\r\nWindow name: " + text +
                          L"\r\nClass name: " + text + L"\r\nWindow handle: 0x"),
              0u);
}

TEST(WindowReportTest, NamesOf259CharactersAreWholeAndLongerOnesAreCut)
{
    for (const size_t length : {0u, 255u, 259u, 260u, 5000u}) {
        ScriptedWindows script;
        const std::wstring text(length, L'%');
        const std::wstring kept(length < 260 ? length : 259, L'%');
        script.paths[42] = text;
        HWND top = script.Add({text, text});
        HWND owner = script.Add({text, text, top});
        const std::wstring report = Report(script.Add({text, text, owner, true, true, 0, 0, 42}));
        EXPECT_EQ(report.find(L"Executable:\r\n" + kept + L"\r\n\r\nWindow name: " + kept +
                              L"\r\nClass name: " + kept +
                              L"\r\nWindow handle: 0x7C0014\r\n\r\nOwner window: 0x7C0012\r\nName: " + kept +
                              L"\r\nTopmost owner: 0x7C0010\r\nName: " + kept + L"\r\n\r\nVisible"),
                  0u)
            << length;
    }
}

TEST(WindowReportTest, AWindowThatHasGoneHasEmptyNamesAndAnswersNo)
{
    ScriptedWindows script;
    EXPECT_EQ(Report(reinterpret_cast<HWND>(0xABC)), L"Executable:\r\n"
                                                     L"\r\n\r\nWindow name: "
                                                     L"\r\nClass name: "
                                                     L"\r\nWindow handle: 0xABC"
                                                     L"\r\n\r\nVisible: No\r\nEnabled: No"
                                                     L"\r\n\r\nStyles: \r\n - WS_OVERLAPPED"
                                                     L"\r\n\r\nExStyles: "
                                                     L"\r\n\r\nWindow rect: (0,0) - (0,0)");
}

TEST(WindowReportTest, AWindowThatGoesWhileTheReportIsMadeStillHasAWholeReport)
{
    for (int questions = 0; questions < 30; questions++) {
        ScriptedWindows script;
        HWND owner = script.Add({L"Owner", L"O"});
        HWND window = script.Add({L"Owned", L"W", owner, true, true, 0x10000000, 0x8, 42, {1, 2, 3, 4}});
        script.lifeInQuestions = questions;
        const std::wstring report = Report(window);
        EXPECT_EQ(report.find(L"Executable:\r\n"), 0u) << questions;
        EXPECT_NE(report.find(L"\r\n\r\nVisible: "), std::wstring::npos) << questions;
        EXPECT_NE(report.find(L"\r\n\r\nWindow rect: ("), std::wstring::npos) << questions;
        EXPECT_EQ(report.back(), L')') << questions;
    }
}

TEST(WindowReportTest, TheReportIsAppended)
{
    ScriptedWindows script;
    CStr report(L"before");
    AppendWindowReport(report, script.Add({L"Word", L"W"}));
    EXPECT_EQ(std::wstring(report.Buffer()).find(L"beforeExecutable:\r\n"), 0u);
}
