// The actions of the buttons: their numbers are those of command lines, their texts what the user chooses by.
#include "keys/KeyActions.h"

#include <gtest/gtest.h>

TEST(KeyActionsTest, EveryActionHasItsNumberAndItsText)
{
    const struct
    {
        KeyAction action;
        const wchar_t* text;
    } actions[] = {{KeyActionLeave, L"Don't handle"},
                   {KeyActionNone, L"Handle, do nothing"},
                   {KeyActionStart, L"Start application"},
                   {KeyActionShowTasks, L"Task manager"},
                   {KeyActionShowProcs, L"Process viewer"},
                   {KeyActionShowSysInfo, L"System information"},
                   {KeyActionShowStart, L"App. Launcher"},
                   {KeyActionCloseCurrent, L"Close current"},
                   {KeyActionCloseAll, L"Close all"},
                   {KeyActionCloseOthers, L"Close all but current"},
                   {KeyActionRotateLeft, L"Screen rotate left"},
                   {KeyActionRotateRight, L"Screen rotate right"},
                   {KeyActionLockKeys, L"Lock keys"}};
    int32_t number = 0;
    for (const auto& expected : actions) {
        EXPECT_EQ(expected.action, number);
        EXPECT_STREQ(keyActionTexts[expected.action], expected.text);
        number++;
    }
    EXPECT_EQ(number, 13);
    EXPECT_EQ(keyActionCount, 13U);
}
