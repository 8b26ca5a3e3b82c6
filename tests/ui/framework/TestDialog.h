// A dialog whose hooks are written down, and whose test runs inside its message loop.
#pragma once

#include "framework/CVireoDialog.h"
#include "tests/ui/Events.h"

#include <functional>

class TestDialog : public CVireoDialog
{
    std::string name;

  public:
    std::function<void()> onInit;
    std::function<void()> body; // runs in the dialog's loop
    std::function<void(HDC)> onPaint;
    std::function<void(SHMENUBARINFO&)> onCreateMenuBar;

    static constexpr UINT messageBody = WM_APP + 100;
    // Messages from here on reach DialogProc's record; it answers messageResult.
    static constexpr UINT messageNoted = WM_APP + 200;
    static constexpr INT_PTR messageResult = 4713;

    explicit TestDialog(const char* eventName) : name(eventName) {}

    // Runs an empty full-screen dialog without soft keys.
    int Start() { return StartDialogNoTemplate(0, 0, true); }
    // What its dialog procedure answers, past the window manager's own treatment.
    INT_PTR Ask(UINT message, WPARAM wParam, LPARAM lParam) const;

    void OnInitDialog() override;
    void OnDestroy() override;
    void OnPaint(HDC deviceContext) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    void OnInitMenuPopup(HMENU menu, uint32_t index) override;
    void OnCreateMenuBar(SHMENUBARINFO& menuBarInfo) override;
    INT_PTR DialogProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    using CVireoDialog::accelerators;
    using CVireoDialog::fullScreen;
    using CVireoDialog::menuBar;
    using CVireoDialog::runsInLoop;
    using CVireoDialog::window;

  private:
    void NoteOwn(const std::string& event) const;
};
