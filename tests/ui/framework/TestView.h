// A view whose hooks are written down.
#pragma once

#include "framework/CVireoView.h"
#include "tests/ui/Events.h"

#include <functional>

class TestView : public CVireoView
{
  public:
    std::function<void()> onCreate;
    std::function<void(HDC)> onPaint;

    // Messages from here on reach WindowProc's record; it answers messageResult.
    static constexpr UINT messageNoted = WM_APP + 200;
    static constexpr LRESULT messageResult = 4712;

    TestView() = default;
    ~TestView() override;
    // Created and handed to the current application, which owns it.
    static TestView* Add(int32_t id, uint32_t menuBarId = 0, uint32_t acceleratorId = 0);

    void Create(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId) override;
    void OnCreate() override;
    void OnDestroy() override;
    void OnActivate(int32_t previousViewId) override;
    void OnDeactivate() override;
    void OnPaint(HDC deviceContext) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    void OnInitMenuPopup(HMENU menu, uint32_t index) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    using CVireoView::id;

  private:
    void NoteOwn(const std::string& event) const;
};
