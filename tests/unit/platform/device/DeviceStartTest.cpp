// The start-up on a device, and the shell's functions that it looks up. The build gives them other names here
// than the PC's: Device and the name (DeviceParts.cmake).
#include "tests/unit/platform/device/DeviceLibraries.h"
#include "tests/unit/platform/device/DeviceProgram.h"

#include "LateExports.h"

#include <algorithm>
#include <functional>

extern "C" {
[[noreturn]] void ProgramStart(HINSTANCE instance, HINSTANCE previousInstance, const wchar_t* commandLine,
                               int showCommand);
BOOL WINAPI DeviceSHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info);
BOOL WINAPI DeviceSHHandleWMActivate(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info,
                                     DWORD flags);
void WINAPI DeviceSHSendBackToFocusWindow(UINT message, WPARAM wParam, LPARAM lParam);
wchar_t* WINAPI DeviceGetCommandLineW();
}

using Events = std::vector<std::string>;

struct ProcessEnded
{
    UINT code;
};

static BOOL WINAPI EndStandIn(HANDLE, UINT code)
{
    throw ProcessEnded{code};
}

static BOOL WINAPI ParametersStandIn(UINT, UINT, void* platform, UINT)
{
    wcscpy(static_cast<wchar_t*>(platform), L"SmartPhone");
    return TRUE;
}

static BOOL WINAPI InitialiseStandIn(const INITCOMMONCONTROLSEX* classes)
{
    // The device's library takes no other size.
    EXPECT_EQ(classes->dwSize, 8u);
    EXPECT_EQ(classes->dwICC, static_cast<DWORD>(ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES));
    DeviceLibraries::current->Note("the controls are registered");
    return TRUE;
}

static BOOL WINAPI SettingStandIn(HWND, WPARAM wParam, LPARAM, SHACTIVATEINFO*)
{
    DeviceLibraries::current->Note("setting " + std::to_string(wParam));
    return 5;
}

static BOOL WINAPI ActivateStandIn(HWND, WPARAM wParam, LPARAM, SHACTIVATEINFO*, DWORD flags)
{
    DeviceLibraries::current->Note("activate " + std::to_string(wParam) + " " + std::to_string(flags));
    return 6;
}

static void WINAPI SendBackStandIn(UINT message, WPARAM, LPARAM)
{
    DeviceLibraries::current->Note("back " + std::to_string(message));
}

class DeviceStartTest : public DeviceLibraries
{
  protected:
    SHACTIVATEINFO info = {};

    ~DeviceStartTest() override { deviceProgram = nullptr; }

    void PutAll()
    {
        Put("commctrl.dll InitCommonControlsEx", InitialiseStandIn);
        Put("aygshell.dll 83", SettingStandIn);
        Put("aygshell.dll 84", ActivateStandIn);
        Put("aygshell.dll 97", SendBackStandIn);
    }

    // The process's exit code.
    static UINT Start(const wchar_t* commandLine = L"")
    {
        const ImportHook end("TerminateProcess", EndStandIn);
        try {
            ProgramStart(nullptr, nullptr, commandLine, SW_SHOWNORMAL);
        } catch (const ProcessEnded& ended) {
            return ended.code;
        }
    }

    // What was noted before the program began; it must have begun.
    Events BeforeProgram() const
    {
        const auto begin = std::ranges::find(events, "the program begins");
        EXPECT_NE(begin, events.end());
        return Events(events.begin(), begin);
    }
};

TEST_F(DeviceStartTest, EveryLateFunctionIsLookedUpBeforeTheProgramBegins)
{
    PutAll();
    Start();
    const Events before = BeforeProgram();
    for (const LateExport* wanted : late::all) {
        EXPECT_EQ(std::ranges::count(before, LookUpOf(*wanted)), 1) << LookUpOf(*wanted);
    }
    EXPECT_EQ(std::ranges::count(before, "the controls are registered"), 1);
    EXPECT_EQ(before.size() + 1, events.size());
}

TEST_F(DeviceStartTest, TheProgramsCallsReachWhatWasFound)
{
    PutAll();
    deviceProgram = [this] {
        events.clear();
        EXPECT_EQ(DeviceSHHandleWMSettingChange(nullptr, 1, 0, &info), 5);
        EXPECT_EQ(DeviceSHHandleWMActivate(nullptr, 2, 0, &info, 3), 6);
        DeviceSHSendBackToFocusWindow(4, 0, 0);
        return 0;
    };
    Start();
    EXPECT_EQ(events, (Events{"setting 1", "activate 2 3", "back 4"}));
}

TEST_F(DeviceStartTest, WhatIsMissingIsToldBeforeTheProgramBeginsAndDoesNothingInIt)
{
    missingLibraries = {"commctrl.dll"};
    deviceProgram = [this] {
        EXPECT_EQ(DeviceSHHandleWMSettingChange(nullptr, 1, 0, &info), FALSE);
        EXPECT_EQ(DeviceSHHandleWMActivate(nullptr, 1, 0, &info, 0), FALSE);
        DeviceSHSendBackToFocusWindow(WM_KEYDOWN, 0, 0);
        return 0;
    };
    Start();
    EXPECT_EQ(events, (Events{
                          "no commctrl.dll",
                          "aygshell.dll 83",
                          "box: This device's shell lacks a function (aygshell.dll, 83): "
                          "the input panel can cover the page.",
                          "aygshell.dll 84",
                          "box: This device's shell lacks a function (aygshell.dll, 84): "
                          "the input panel can stay open.",
                          "aygshell.dll 97",
                          "box: This device's shell lacks a function (aygshell.dll, 97): "
                          "the Back key does not delete text.",
                          "note_prj.dll 7",
                          "note_prj.dll 8",
                          "coredll.dll GetSystemPowerStatusEx",
                          "aygshell.dll 364",
                          "the program begins",
                      }));
}

TEST_F(DeviceStartTest, ASmartphoneDoesNotMissTheInputPanelsFunctions)
{
    const ImportHook parameters("SystemParametersInfoW", ParametersStandIn);
    PutAll();
    functions.erase("aygshell.dll 83");
    functions.erase("aygshell.dll 84");
    Start();
    for (const std::string& event : BeforeProgram()) {
        EXPECT_FALSE(event.starts_with("box:")) << event;
    }
}

TEST_F(DeviceStartTest, TheProgramHasItsCommandLineAndItsResultEndsTheProcess)
{
    PutAll();
    std::wstring commandLine;
    deviceProgram = [&] {
        commandLine = DeviceGetCommandLineW();
        return 7;
    };
    EXPECT_EQ(Start(L"193 1*0"), 7u);
    EXPECT_EQ(commandLine, L"193 1*0");
}
