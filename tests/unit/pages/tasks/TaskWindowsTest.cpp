// The rules about the windows of running applications.
#include "pages/tasks/TaskWindows.h"

#include "framework/WindowFacts.h"
#include "tests/unit/ScriptedWindows.h"

#include <gtest/gtest.h>

static ScriptedWindow Titled(const std::wstring& title, bool visible = true, HWND owner = nullptr)
{
    ScriptedWindow window;
    window.title = title;
    window.visible = visible;
    window.owner = owner;
    return window;
}

TEST(TaskWindowsTest, AWindowIsEligibleOnlyWhenVisibleEnabledAndAnApplicationsOwn)
{
    ScriptedWindows script;
    ScriptedWindow window = Titled(L"Notes");
    EXPECT_TRUE(IsEligibleWindow(script.Add(window)));
    window.exStyle = static_cast<LONG>(~(0x08000000u | 0x00000080u));
    EXPECT_TRUE(IsEligibleWindow(script.Add(window)));
    window.exStyle = 0x08000000;
    EXPECT_FALSE(IsEligibleWindow(script.Add(window))) << "cannot be activated";
    window.exStyle = 0x00000080;
    EXPECT_FALSE(IsEligibleWindow(script.Add(window))) << "tool window";
    window.exStyle = 0;
    window.enabled = false;
    EXPECT_FALSE(IsEligibleWindow(script.Add(window))) << "disabled";
    window.enabled = true;
    window.visible = false;
    EXPECT_FALSE(IsEligibleWindow(script.Add(window))) << "hidden";
}

TEST(TaskWindowsTest, EligibilityIsTheWindowsOwnNotItsOwners)
{
    ScriptedWindows script;
    ScriptedWindow bad = Titled(L"owner", false);
    bad.enabled = false;
    bad.exStyle = 0x08000080;
    HWND badOwner = script.Add(bad);
    EXPECT_TRUE(IsEligibleWindow(script.Add(Titled(L"window", true, badOwner))));
    bad.owner = script.Add(Titled(L"good owner"));
    EXPECT_FALSE(IsEligibleWindow(script.Add(bad)));
}

TEST(TaskWindowsTest, AWindowThatHasGoneIsNotEligible)
{
    ScriptedWindows script;
    EXPECT_FALSE(IsEligibleWindow(reinterpret_cast<HWND>(0x123456)));
}

TEST(TaskWindowsTest, TheTopOwnerIsTheEndOfTheChain)
{
    ScriptedWindows script;
    HWND top = script.Add(Titled(L"top"));
    EXPECT_EQ(TopOwner(top), top);
    HWND window = top;
    for (int depth = 1; depth <= 5; depth++) {
        window = script.Add(Titled(L"owned", true, window));
        EXPECT_EQ(TopOwner(window), top) << depth;
    }
}

static std::wstring NameFor(bool ownerVisible, const wchar_t* ownerTitle, const wchar_t* windowTitle)
{
    ScriptedWindows script;
    HWND owner = script.Add(Titled(ownerTitle, ownerVisible));
    HWND window = script.Add(Titled(windowTitle, true, owner));
    CStr name(L"left over");
    ChooseTaskName(window, owner, name);
    return name.Buffer();
}

TEST(TaskWindowsTest, AVisibleTopOwnerGivesTheNameAndTheWindowWhenItHasNone)
{
    EXPECT_EQ(NameFor(true, L"Word", L"Open file"), L"Word");
    EXPECT_EQ(NameFor(true, L"", L"Open file"), L"Open file");
    EXPECT_EQ(NameFor(true, L"", L""), L"");
}

TEST(TaskWindowsTest, UnderAHiddenTopOwnerTheWindowGivesTheNameAndTheOwnerWhenItHasNone)
{
    EXPECT_EQ(NameFor(false, L"Word", L"Open file"), L"Open file");
    EXPECT_EQ(NameFor(false, L"Word", L""), L"Word");
    EXPECT_EQ(NameFor(false, L"", L""), L"");
}

TEST(TaskWindowsTest, TextsOf259CharactersAreWholeAndLongerOnesAreCut)
{
    for (const size_t length : {0u, 1u, 255u, 258u, 259u, 260u, 261u, 5000u}) {
        ScriptedWindows script;
        ScriptedWindow window = Titled(std::wstring(length, L'%'));
        window.className = std::wstring(length, L'&');
        HWND handle = script.Add(window);
        CStr title;
        CStr className;
        CStr name;
        WindowTitle(handle, title);
        WindowClass(handle, className);
        ChooseTaskName(handle, handle, name);
        const std::wstring kept(length < 260 ? length : 259, L'%');
        EXPECT_EQ(title.Buffer(), kept);
        EXPECT_EQ(name.Buffer(), kept);
        EXPECT_EQ(className.Length(), kept.size());
        EXPECT_EQ(script.longestText, 260);
    }
}

TEST(TaskWindowsTest, TextsAreTakenLetterForLetter)
{
    for (const wchar_t* text :
         {L"100% \"sure\" & %s%n%d", L"Проводник", L"メモ帳 📝", L"  blanks \t", L"\\\\x\\y"}) {
        ScriptedWindows script;
        ScriptedWindow window = Titled(text);
        window.className = text;
        HWND handle = script.Add(window);
        CStr title;
        CStr className;
        WindowTitle(handle, title);
        WindowClass(handle, className);
        EXPECT_STREQ(title.Buffer(), text);
        EXPECT_STREQ(className.Buffer(), text);
    }
}

TEST(TaskWindowsTest, AWindowThatHasGoneHasNoTextsAndNoProcess)
{
    ScriptedWindows script;
    const auto gone = reinterpret_cast<HWND>(0x123456);
    CStr title(L"left over");
    CStr className(L"left over");
    WindowTitle(gone, title);
    WindowClass(gone, className);
    EXPECT_STREQ(title.Buffer(), L"");
    EXPECT_STREQ(className.Buffer(), L"");
    EXPECT_EQ(WindowProcessId(gone), 0u);
    EXPECT_EQ(TopOwner(gone), gone);
}

TEST(TaskWindowsTest, TheShellsTwoClassesAreProtectedInAnyCase)
{
    for (const wchar_t* className : {L"DesktopExplorerWindow", L"desktopexplorerwindow",
                                     L"DESKTOPEXPLORERWINDOW", L"Explore", L"EXPLORE"}) {
        EXPECT_TRUE(IsProtectedClass(className)) << className;
    }
    for (const wchar_t* className :
         {L"", L"Explorer", L"Explor", L" Explore", L"MSStart", L"DesktopExplorerWindow2"}) {
        EXPECT_FALSE(IsProtectedClass(className)) << className;
    }
}

TEST(TaskWindowsTest, TheProcessIsThatOfTheWindowsThread)
{
    ScriptedWindows script;
    ScriptedWindow window;
    window.processId = 0xC0FFEE12;
    EXPECT_EQ(WindowProcessId(script.Add(window)), 0xC0FFEE12u);
}
