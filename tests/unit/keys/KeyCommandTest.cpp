// A button's command that one instance hands to another.
#include "app/CApp.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TestHeap.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

class KeyApp : public CApp
{
  public:
    using CApp::keyPress;
    using CApp::startMinimised;

    LRESULT Copy(ULONG_PTR kind, DWORD size, const void* data)
    {
        COPYDATASTRUCT copy = {kind, size, const_cast<void*>(data)};
        return WindowProc(WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy));
    }
};

static const auto running = reinterpret_cast<HWND>(0x7C0010);

// What was handed over by the last WM_COPYDATA, and how.
static ULONG_PTR sentKind;
static std::vector<unsigned char> sentBytes;
static HWND sentTo;
static int sends;

static LRESULT WINAPI TakeCopy(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    EXPECT_EQ(message, static_cast<UINT>(WM_COPYDATA));
    const auto* copy = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
    const auto* bytes = static_cast<const unsigned char*>(copy->lpData);
    sentTo = window;
    sentKind = copy->dwData;
    sentBytes.assign(bytes, bytes + copy->cbData);
    sends++;
    return TRUE;
}

static HWND broughtForward;

static BOOL WINAPI TakeForeground(HWND window)
{
    broughtForward = window;
    return TRUE;
}

class KeyCommandTest : public testing::Test
{
  protected:
    ImportHook send{"SendMessageW", TakeCopy};
    ImportHook foreground{"SetForegroundWindow", TakeForeground};
    KeyApp app;

    KeyCommandTest()
    {
        sends = 0;
        sentTo = nullptr;
        broughtForward = nullptr;
    }

    int32_t SentNumber(size_t offset) const
    {
        int32_t value = 0;
        memcpy(&value, &sentBytes.at(offset), sizeof value);
        return value;
    }
    std::wstring SentText(size_t offset) const
    {
        wchar_t text[256];
        memcpy(text, &sentBytes.at(offset), sizeof text);
        EXPECT_NE(wmemchr(text, 0, 256), nullptr) << "not terminated";
        text[255] = 0;
        return text;
    }
};

TEST_F(KeyCommandTest, TheRecordHasFixedPlaces)
{
    EXPECT_EQ(sizeof(SKeyCommand), 1036u);
    EXPECT_EQ(offsetof(SKeyCommand, vk), 0u);
    EXPECT_EQ(offsetof(SKeyCommand, pressAction), 4u);
    EXPECT_EQ(offsetof(SKeyCommand, holdAction), 8u);
    EXPECT_EQ(offsetof(SKeyCommand, pressApplication), 12u);
    EXPECT_EQ(offsetof(SKeyCommand, holdApplication), 524u);
}

TEST_F(KeyCommandTest, ASecondInstanceHandsItsCommandOverAndEnds)
{
    EXPECT_FALSE(app.CheckPrevInstance(running, L"193 \\a b.lnk*12"));
    ASSERT_EQ(sends, 1);
    EXPECT_EQ(sentTo, running);
    EXPECT_EQ(sentKind, 1u);
    ASSERT_EQ(sentBytes.size(), 1036u);
    EXPECT_EQ(SentNumber(0), 193);
    EXPECT_EQ(SentNumber(4), 2);
    EXPECT_EQ(SentNumber(8), 12);
    EXPECT_EQ(SentText(12), L"\\a b.lnk");
    EXPECT_EQ(SentText(524), L"");
    EXPECT_EQ(broughtForward, nullptr);
}

TEST_F(KeyCommandTest, ANegativeKeyIsHandedOverToo)
{
    EXPECT_FALSE(app.CheckPrevInstance(running, L"-5 3*x"));
    EXPECT_EQ(SentNumber(0), -5);
    EXPECT_EQ(SentText(524), L"x");
}

TEST_F(KeyCommandTest, WhatFollowsATextInTheRecordIsZero)
{
    app.CheckPrevInstance(running, L"193 a*b");
    for (size_t i = 14; i < 524; i++) {
        EXPECT_EQ(sentBytes[i], 0) << i;
    }
    for (size_t i = 526; i < 1036; i++) {
        EXPECT_EQ(sentBytes[i], 0) << i;
    }
}

TEST_F(KeyCommandTest, PathsOf255CharactersAreWholeAndLongerOnesAreCut)
{
    for (const size_t length : {1u, 254u, 255u, 256u, 257u, 5000u}) {
        const std::wstring path(length, L'x');
        app.CheckPrevInstance(running, (L"193 " + path + L"*" + path).c_str());
        const std::wstring kept = path.substr(0, 255);
        EXPECT_EQ(SentText(12), kept);
        EXPECT_EQ(SentText(524), kept);
        EXPECT_EQ(sentBytes.size(), 1036u);
    }
}

TEST_F(KeyCommandTest, ASecondInstanceWithoutAKeyBringsTheFirstForwardAndEnds)
{
    for (const wchar_t* line : {L"", L"193 3", L"abc 3*9", L"0 3*9"}) {
        broughtForward = nullptr;
        EXPECT_FALSE(app.CheckPrevInstance(running, line)) << line;
        EXPECT_EQ(broughtForward, reinterpret_cast<HWND>(0x7C0011)) << line;
    }
    EXPECT_EQ(sends, 0);
}

TEST_F(KeyCommandTest, TheFirstInstanceStartsMinimisedWhenAButtonStartedIt)
{
    EXPECT_TRUE(app.CheckPrevInstance(nullptr, L"193 3*\\x.lnk"));
    EXPECT_TRUE(app.startMinimised);
    EXPECT_EQ(app.keyPress.vk, 193);
    EXPECT_EQ(app.keyPress.pressAction, 3);
    EXPECT_EQ(app.keyPress.holdAction, 2);
    EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"");
    EXPECT_STREQ(app.keyPress.holdApplication.Buffer(), L"\\x.lnk");
    KeyApp normal;
    EXPECT_TRUE(normal.CheckPrevInstance(nullptr, L"193 3"));
    EXPECT_FALSE(normal.startMinimised);
    EXPECT_EQ(normal.keyPress.vk, 0);
    EXPECT_EQ(sends, 0);
    EXPECT_EQ(broughtForward, nullptr);
}

TEST_F(KeyCommandTest, ARecordIsTaken)
{
    SKeyCommand command = {198, 3, 2, L"\\a.lnk", L"\\b.lnk"};
    EXPECT_EQ(app.Copy(1, sizeof command, &command), TRUE);
    EXPECT_EQ(app.keyPress.vk, 198);
    EXPECT_EQ(app.keyPress.pressAction, 3);
    EXPECT_EQ(app.keyPress.holdAction, 2);
    EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"\\a.lnk");
    EXPECT_STREQ(app.keyPress.holdApplication.Buffer(), L"\\b.lnk");
}

TEST_F(KeyCommandTest, UnterminatedTextsEndAfter255Characters)
{
    SKeyCommand command = {};
    wmemset(command.pressApplication, L'p', 256);
    wmemset(command.holdApplication, L'h', 256);
    EXPECT_EQ(app.Copy(1, sizeof command, &command), TRUE);
    EXPECT_EQ(std::wstring(app.keyPress.pressApplication), std::wstring(255, L'p'));
    EXPECT_EQ(std::wstring(app.keyPress.holdApplication), std::wstring(255, L'h'));
}

// Nothing behind the size that was told may be read.
TEST_F(KeyCommandTest, ForeignRecordsAreAnsweredAndIgnored)
{
    app.CheckPrevInstance(nullptr, L"193 \\s*\\l");
    SKeyCommand command = {1, 2, 3, L"x", L"y"};
    std::vector<unsigned char> larger(1037, 0x41);
    EXPECT_EQ(app.Copy(0, sizeof command, &command), TRUE);
    EXPECT_EQ(app.Copy(2, sizeof command, &command), TRUE);
    EXPECT_EQ(app.Copy(0x100000001, sizeof command, &command), TRUE);
    for (const DWORD size : {0u, 1u, 4u, 1035u}) {
        EXPECT_EQ(app.Copy(1, size, std::vector<unsigned char>(size).data()), TRUE) << size;
    }
    EXPECT_EQ(app.Copy(1, 1037, larger.data()), TRUE);
    EXPECT_EQ(app.Copy(1, 0xFFFFFFFF, &command), TRUE);
    EXPECT_EQ(app.Copy(1, sizeof command, nullptr), TRUE);
    EXPECT_EQ(app.Copy(1, 0, nullptr), TRUE);
    EXPECT_EQ(app.WindowProc(WM_COPYDATA, 0, 0), TRUE);
    EXPECT_EQ(app.keyPress.vk, 193);
    EXPECT_EQ(app.keyPress.pressAction, 2);
    EXPECT_EQ(app.keyPress.holdAction, 2);
    EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"\\s");
    EXPECT_STREQ(app.keyPress.holdApplication.Buffer(), L"\\l");
}

static int defaults;

static LRESULT WINAPI CountDefault(HWND, UINT, WPARAM, LPARAM)
{
    defaults++;
    return 0x1234;
}

TEST_F(KeyCommandTest, ARecordIsNotPassedOnButEveryOtherMessageIs)
{
    const ImportHook hook("DefWindowProcW", CountDefault);
    SKeyCommand command = {};
    defaults = 0;
    app.Copy(1, sizeof command, &command);
    app.Copy(9, sizeof command, &command);
    app.WindowProc(WM_COPYDATA, 0, 0);
    EXPECT_EQ(defaults, 0);
    int expected = 0;
    for (const UINT message : {WM_TIMER, WM_HOTKEY, WM_KEYDOWN, WM_APP + 100, WM_USER}) {
        EXPECT_EQ(app.WindowProc(message, 0, 0), 0x1234) << message;
        EXPECT_EQ(defaults, ++expected) << message;
    }
    EXPECT_EQ(app.WindowProc(WM_TIMER, 1, 0), 0x1234);
}

static std::vector<LPARAM> sentBack;

static void WINAPI TakeBack(UINT message, WPARAM wParam, LPARAM lParam)
{
    EXPECT_EQ(message, static_cast<UINT>(WM_HOTKEY));
    EXPECT_EQ(wParam, 9u);
    sentBack.push_back(lParam);
}

TEST_F(KeyCommandTest, TheBackKeyGoesToTheFocusedWindow)
{
    const ImportHook hook("SHSendBackToFocusWindow", TakeBack);
    sentBack.clear();
    app.WindowProc(WM_HOTKEY, 9, MAKELPARAM(0x1000, VK_ESCAPE));
    app.WindowProc(WM_HOTKEY, 9, MAKELPARAM(0, VK_ESCAPE));
    app.WindowProc(WM_HOTKEY, 9, MAKELPARAM(VK_ESCAPE, VK_F3));
    EXPECT_EQ(sentBack, (std::vector<LPARAM>{MAKELPARAM(0x1000, 27), MAKELPARAM(0, 27)}));
}

TEST_F(KeyCommandTest, HandingOverLeavesNothingAllocated)
{
    SKeyCommand command = {198, 2, 2, L"\\a.lnk", L"\\b.lnk"};
    app.Copy(1, sizeof command, &command);
    const size_t before = LiveBlocks();
    for (int i = 0; i < 100; i++) {
        app.Copy(1, sizeof command, &command);
    }
    EXPECT_EQ(LiveBlocks(), before);
}
