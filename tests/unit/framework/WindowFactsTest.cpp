// Facts about any window: its title, its class and its process.
#include "framework/WindowFacts.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

static HWND asked;
static std::wstring answer;

static int WINAPI GiveAnswer(HWND window, wchar_t* text, int size)
{
    asked = window;
    const int length = std::min(static_cast<int>(answer.size()), size - 1);
    wmemcpy(text, answer.c_str(), static_cast<size_t>(length));
    text[length] = 0;
    return length;
}

static int WINAPI GiveNothing(HWND, wchar_t*, int)
{
    return 0;
}

static HWND AnyWindow()
{
    return reinterpret_cast<HWND>(static_cast<INT_PTR>(0x1234));
}

TEST(WindowFactsTest, TitleAndClassHaveAtMost259Characters)
{
    const ImportHook title("GetWindowTextW", GiveAnswer);
    const ImportHook name("GetClassNameW", GiveAnswer);
    const struct
    {
        size_t given;
        uint32_t taken;
    } lengths[] = {{0, 0}, {1, 1}, {259, 259}, {260, 259}, {400, 259}};
    for (const auto& length : lengths) {
        answer.assign(length.given, L'x');
        for (void (*const ask)(HWND, CStr&) : {WindowTitle, WindowClass}) {
            CStr text(L"left from before");
            asked = nullptr;
            ask(AnyWindow(), text);
            EXPECT_EQ(text.Length(), length.taken);
            EXPECT_EQ(asked, AnyWindow());
        }
    }
}

TEST(WindowFactsTest, WhatAWindowDoesNotTellIsEmpty)
{
    const ImportHook title("GetWindowTextW", GiveNothing);
    const ImportHook name("GetClassNameW", GiveNothing);
    CStr text(L"left from before");
    WindowTitle(AnyWindow(), text);
    EXPECT_STREQ(L"", text);
    text = L"left from before";
    WindowClass(AnyWindow(), text);
    EXPECT_STREQ(L"", text);
}

static DWORD WINAPI GiveProcess(HWND window, DWORD* processId)
{
    if (!window) {
        return 0;
    }
    *processId = 77;
    return 1;
}

TEST(WindowFactsTest, OnlyAWindowThatIsThereHasAProcess)
{
    const ImportHook hook("GetWindowThreadProcessId", GiveProcess);
    EXPECT_EQ(WindowProcessId(AnyWindow()), 77u);
    EXPECT_EQ(WindowProcessId(nullptr), 0u);
}
