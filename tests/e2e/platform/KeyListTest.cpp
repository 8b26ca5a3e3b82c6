// The list of the handheld's keys.
// profiles: pocketpc pocketpc-vga smartphone
// device's executable: never
#include "rig/Actor.h"
#include "rig/Picture.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/ShellSession.h"

#include <filesystem>
#include <fstream>

using namespace rig;

class KeyListTest : public testing::Test
{
  protected:
    const Actor actor;
    HWND front = nullptr;

    void SetUp() override
    {
        front = actor.Make({.title = L"In front"});
        ASSERT_TRUE(Raise(front));
    }

    static HWND List() { return FindTopWindow({.className = L"QuorvaneHandheldKeys"}); }
    static HWND Open()
    {
        PressKey(VK_F12);
        const HWND list = WaitForTopWindow({.className = L"QuorvaneHandheldKeys"});
        EXPECT_TRUE(WaitFor([=] { return GetForegroundWindow() == list; }));
        return list;
    }
    void ExpectClosed() const
    {
        EXPECT_TRUE(WaitFor([] { return !List(); }));
        EXPECT_TRUE(WaitFor([this] { return GetForegroundWindow() == front; }));
    }
};

TEST_F(KeyListTest, F12ShowsAndHidesIt)
{
    for (int round = 0; round < 2; round++) {
        ASSERT_TRUE(Open());
        PressKey(VK_F12);
        ExpectClosed();
    }
}

TEST_F(KeyListTest, AnyOtherKeyAndATapHideIt)
{
    ASSERT_TRUE(Open());
    PressKey(VK_ESCAPE);
    ExpectClosed();
    const HWND list = Open();
    ASSERT_TRUE(list);
    Tap(PointIn(list, Scaled(50), Scaled(50)));
    ExpectClosed();
}

TEST_F(KeyListTest, ItGoesWhenAnotherProgramComesForward)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(BringToFront(front));
    ExpectClosed();
}

TEST_F(KeyListTest, ACommandWritesTheSame)
{
    const std::filesystem::path file = L"C:\\keys.txt";
    std::filesystem::remove(file);
    const ChildProcess child(L"C:\\windows\\system32\\cmd.exe", L"/c \"\"" + ProgramFolder() +
                                                                    L"\\handheld.exe\" --keys 2>" +
                                                                    file.wstring() + L"\"");
    ASSERT_EQ(child.ExitCode(patience), 0u);
    std::ifstream stream(file);
    const std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    EXPECT_NE(text.find("F5 to F8        hardware buttons 1 to 4, also held\n"), std::string::npos) << text;
    EXPECT_EQ(text.find("Home, also held") != std::string::npos, IsSmartphoneSession()) << text;
    stream.close();
    std::filesystem::remove(file);
}
