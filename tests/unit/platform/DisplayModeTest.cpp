// The orientation of the screen as the program asks for it, and what is refused. Nothing here turns the
// screen.
#include "platform/ce.h"

#include <gtest/gtest.h>

static DEVMODEW Mode(DWORD fields, DWORD orientation = 99)
{
    DEVMODEW mode = {};
    mode.dmSize = 192;
    mode.dmFields = fields;
    mode.dmDisplayOrientation = orientation;
    return mode;
}

static LONG Change(DEVMODEW* mode, DWORD flags)
{
    return ChangeDisplaySettingsEx(nullptr, mode, nullptr, flags, nullptr);
}

TEST(DisplayModeTest, TheRecordAndItsValuesAreTheDevices)
{
    EXPECT_EQ(sizeof(DEVMODEW), 192u);
    EXPECT_EQ(DM_DISPLAYORIENTATION, 0x800000);
    EXPECT_EQ(DMDO_0, 0);
    EXPECT_EQ(DMDO_90, 1);
    EXPECT_EQ(DMDO_180, 2);
    EXPECT_EQ(DMDO_270, 4);
}

TEST(DisplayModeTest, AQueryAnswersTheOrientationAndNothingElse)
{
    DEVMODEW mode = Mode(0x800000);
    ASSERT_EQ(Change(&mode, 2), 0);
    EXPECT_EQ(mode.dmDisplayOrientation, 0u);
    mode.dmDisplayOrientation = 99;
    const DEVMODEW asked = Mode(0x800000);
    EXPECT_EQ(memcmp(&mode, &asked, sizeof mode), 0);
}

TEST(DisplayModeTest, AllTurnsAreKnown)
{
    DEVMODEW mode = Mode(0x1000000);
    ASSERT_EQ(Change(&mode, 2), 0);
    EXPECT_EQ(mode.dmDisplayOrientation, 7u);
}

TEST(DisplayModeTest, WhatIsNoRequestIsRefusedAndAnswersNothing)
{
    EXPECT_EQ(Change(nullptr, 2), -5);
    DEVMODEW mode = Mode(0x800000);
    EXPECT_EQ(ChangeDisplaySettingsEx(L"DISPLAY", &mode, nullptr, 2, nullptr), -5);
    mode.dmSize = 220; // the desktop's record
    EXPECT_EQ(Change(&mode, 2), -5);
    mode = Mode(0x80); // the desktop's bit
    EXPECT_EQ(Change(&mode, 2), -2);
    mode = Mode(0x800000);
    EXPECT_EQ(Change(&mode, 1), -4);
    EXPECT_EQ(mode.dmDisplayOrientation, 99u);
}

TEST(DisplayModeTest, AnUnknownOrientationIsRefused)
{
    for (const DWORD orientation : {3u, 5u, 8u, 90u, 0xFFFFFFFFu}) {
        DEVMODEW mode = Mode(0x800000, orientation);
        EXPECT_EQ(Change(&mode, 0), -2) << orientation;
    }
    DEVMODEW question = Mode(0x1000000, 0);
    EXPECT_EQ(Change(&question, 0), -2);
    DEVMODEW now = Mode(0x800000);
    ASSERT_EQ(Change(&now, 2), 0);
    EXPECT_EQ(now.dmDisplayOrientation, 0u);
}
