// What the hardware buttons of a new handheld start.
#include "platform/pc/common/FirstButtons.h"

#include "platform/pc/common/ButtonCommand.h"
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/Shortcut.h"
#include "tests/unit/platform/OwnMachine.h"

#include <gtest/gtest.h>

static constexpr wchar_t keys[] = L"Software\\Microsoft\\Shell\\Keys\\";

class FirstButtonsTest : public testing::Test
{
  protected:
    const OwnMachine machine;
    const std::vector<std::wstring> buttons = {std::wstring(keys) + L"40C1", std::wstring(keys) + L"40C2",
                                               std::wstring(keys) + L"40C3", std::wstring(keys) + L"40C4"};

    static void Fill() { handheld::FillButtonsOnce(L"Software\\Filled"); }
};

TEST_F(FirstButtonsTest, FourButtonsHaveNamesAndFlags)
{
    Fill();
    for (size_t i = 0; i < buttons.size(); i++) {
        EXPECT_EQ(machine.Text(buttons[i], L"Name"), L"Button " + std::to_wstring(i + 1));
        EXPECT_EQ(machine.Number(buttons[i], L"Flags"), 0);
        EXPECT_EQ(machine.Number(buttons[i], L"ResetFlags"), 0);
        // A program that takes a button clears these, and leaves them so when it gives the button back.
        EXPECT_EQ(machine.Number(buttons[i], L"BtnWnd"), 0);
        EXPECT_EQ(machine.Text(buttons[i], L"WndCls"), L"");
    }
    EXPECT_EQ(machine.Text(std::wstring(keys) + L"40C5", L"Name"), L"no text");
}

TEST_F(FirstButtonsTest, TheirCommandsStartProgramsThatAreThere)
{
    Fill();
    std::vector<std::wstring> programs;
    for (const std::wstring& button : buttons) {
        const std::wstring command = machine.Text(button, L"Default");
        EXPECT_EQ(machine.Text(button, L"ResetCmd"), command);
        std::wstring file = handheld::DevicePath(handheld::SplitButtonCommand(command).file);
        EXPECT_NE(GetFileAttributesW(file.c_str()), INVALID_FILE_ATTRIBUTES) << testing::PrintToString(file);
        for (handheld::Shortcut shortcut; handheld::ReadShortcut(file, shortcut);) {
            file = handheld::DevicePath(shortcut.path);
        }
        EXPECT_NE(GetFileAttributesW(file.c_str()), INVALID_FILE_ATTRIBUTES) << testing::PrintToString(file);
        EXPECT_EQ(std::count(programs.begin(), programs.end(), file), 0);
        programs.push_back(file);
    }
}

TEST_F(FirstButtonsTest, WhatTheUserChangedStaysChanged)
{
    Fill();
    machine.Write(buttons[0], L"Default", REG_SZ, L"mine", 10);
    ASSERT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, buttons[1].c_str()), 0);
    Fill();
    EXPECT_EQ(machine.Text(buttons[0], L"Default"), L"mine");
    EXPECT_EQ(machine.Text(buttons[1], L"Name"), L"no text");
}

TEST_F(FirstButtonsTest, AButtonThatIsThereIsLeftAlone)
{
    machine.Write(buttons[2], L"Name", REG_SZ, L"Mine", 10);
    Fill();
    EXPECT_EQ(machine.Text(buttons[2], L"Name"), L"Mine");
    EXPECT_EQ(machine.Text(buttons[2], L"Default"), L"no text");
    EXPECT_EQ(machine.Text(buttons[3], L"Name"), L"Button 4");
}
