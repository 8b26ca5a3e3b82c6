// A window that is uncovered and covered again while its program is busy: it stays behind the other one.
// profiles: pocketpc smartphone
// device's executable: never
#include "rig/Actor.h"
#include "rig/Desktop.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace rig;

class LateExposureTest : public testing::Test
{
  protected:
    static constexpr UINT place = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    static constexpr RECT area = {20, 60, 180, 160};
    static constexpr COLORREF colour = RGB(20, 120, 220);
    const Actor busy;
    const Actor other;
    HWND behind = busy.Make({.title = L"Behind", .place = area});
    HWND cause = busy.Make(
        {.title = L"Cause", .place = {0, 180, 20, 200}, .closing = actor::Closing::Delay, .delay = 1500});
    HWND before = other.Make({.title = L"Before", .place = area, .colour = colour});

    LateExposureTest() { SetProcessDPIAware(); }

    static bool Answers(HWND window)
    {
        return SendMessageTimeoutW(window, WM_NULL, 0, 0, 0, 50, nullptr) != 0;
    }

    static void Show(HWND window, bool shown)
    {
        SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, place | (shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    }

    // Their places in the system's order are told apart by it.
    static bool IsBefore(HWND first, HWND second)
    {
        const std::vector<HWND> windows = TopWindows();
        return std::find(windows.begin(), windows.end(), first) <
               std::find(windows.begin(), windows.end(), second);
    }

    static bool Shows(const RECT& part, COLORREF wanted)
    {
        const Picture picture = Picture::OfScreen(part);
        return picture.Count(wanted) == picture.Width() * picture.Height();
    }

    // The other window goes and comes again, meanwhile as large as given; then its program is done.
    void CoverAgain(const RECT& cover)
    {
        ASSERT_TRUE(behind && cause && before);
        ASSERT_TRUE(Raise(before));
        ASSERT_TRUE(WaitFor([] { return Shows(area, colour); }));
        PostMessageW(cause, WM_CLOSE, 0, 0);
        ASSERT_TRUE(WaitFor([&] { return !Answers(behind); }));
        Show(before, false);
        SetWindowPos(before, HWND_TOP, cover.left, cover.top, cover.right - cover.left,
                     cover.bottom - cover.top, SWP_NOACTIVATE | SWP_SHOWWINDOW);
        ASSERT_TRUE(WaitFor([&] { return Shows(cover, colour); }));
        ASSERT_FALSE(Answers(behind)) << "it was to be busy all the time";
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(cause) && Answers(behind); }));
    }

    // When the cover in front moves away. A layered window is not on the screen before it is told how to be:
    // it is as one that is just being shown.
    void ExpectAComingWindowStays(HWND cover) const
    {
        const HWND coming = other.Make({.title = L"Coming", .exStyle = WS_EX_LAYERED, .place = area});
        ASSERT_TRUE(behind && cover && coming);
        ASSERT_TRUE(Raise(cover));
        ASSERT_TRUE(IsBefore(coming, behind));
        SetWindowPos(cover, nullptr, 20, 170, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        ASSERT_TRUE(WaitFor([] { return Shows(area, RGB(0, 128, 0)); }));
        ASSERT_TRUE(Answers(behind)); // it has read of it
        EXPECT_TRUE(IsBefore(coming, behind));
    }
};

TEST_F(LateExposureTest, TheWindowThatCoversItStaysBeforeIt)
{
    CoverAgain(area);
    ASSERT_FALSE(HasFatalFailure());
    EXPECT_TRUE(IsBefore(before, behind));
    EXPECT_EQ(WindowFromPoint({100, 100}), before);
    EXPECT_TRUE(Shows(area, colour));
}

TEST_F(LateExposureTest, AWindowThatIsNotOnTheScreenYetStaysBeforeIt)
{
    ExpectAComingWindowStays(before);
}

TEST_F(LateExposureTest, NorDoesAWindowOfTheSameProgramBringItForward)
{
    other.Vanish(before);
    ExpectAComingWindowStays(busy.Make({.title = L"Own", .place = area, .colour = colour}));
}

TEST_F(LateExposureTest, WhatIsLeftOfItIsPainted)
{
    const RECT cover = {60, 90, 120, 130}; // in the middle
    CoverAgain(cover);
    ASSERT_FALSE(HasFatalFailure());
    for (const RECT& part :
         {RECT{20, 60, 180, 90}, RECT{20, 130, 180, 160}, RECT{20, 90, 60, 130}, RECT{120, 90, 180, 130}}) {
        EXPECT_TRUE(WaitFor([&] { return Shows(part, RGB(0, 128, 0)); })) << part.left << ',' << part.top;
    }
    EXPECT_TRUE(IsBefore(before, behind));
    EXPECT_TRUE(Shows(cover, colour));
}
