// An application object whose hooks are written down, and whose test runs inside its message loop.
#pragma once

#include "framework/CVireoApp.h"
#include "tests/ui/Events.h"

#include <functional>

class TestApp : public CVireoApp
{
  public:
    std::function<bool()> create; // OnCreate: make the views
    std::function<void()> body;   // what the test does once the loop runs; the application ends after it
    bool endsAfterBody = true;
    bool mayStart = true; // CheckPrevInstance
    HWND earlierInstance = nullptr;

    static constexpr UINT messageBody = WM_APP + 100;
    // Messages from here on reach WindowProc's record; it answers messageResult.
    static constexpr UINT messageNoted = WM_APP + 200;
    static constexpr LRESULT messageResult = 4711;

    TestApp() = default;
    explicit TestApp(std::function<void()> test) : body(std::move(test)) {}

    // The program's own start: its title, icon and accelerators.
    int Start(int showCommand = SW_SHOWNORMAL);

    bool OnCreate() override;
    void OnDestroy() override;
    bool CheckPrevInstance(HWND existingWindow, const wchar_t* commandLine) override;
    void OnCommand(uint32_t id, uint32_t notifyCode, LPARAM control) override;
    void OnInitMenuPopup(HMENU menu, uint32_t index) override;
    void OnActivate() override;
    void OnDeactivate() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    using CVireoApp::activateInfo;
    using CVireoApp::dialogs;
    using CVireoApp::infoWindow;
    using CVireoApp::initialViewId;
    using CVireoApp::instance;
    using CVireoApp::osBuild;
    using CVireoApp::osMajor;
    using CVireoApp::osMinor;
    using CVireoApp::platform;
    using CVireoApp::secondInfoWindow;
    using CVireoApp::startMinimised;
    using CVireoApp::views;
};
