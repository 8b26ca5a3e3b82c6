// The view of the tests.
#include "tests/ui/framework/TestView.h"

#include "framework/CVireoApp.h"

void TestView::NoteOwn(const std::string& event) const
{
    Note("view " + std::to_string(id) + " " + event);
}

TestView::~TestView()
{
    NoteOwn("deleted");
}

TestView* TestView::Add(int32_t id, uint32_t menuBarId, uint32_t acceleratorId)
{
    auto* view = new TestView;
    view->Create(id, menuBarId, acceleratorId);
    CVireoApp::Current()->AddView(view);
    return view;
}

void TestView::Create(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId)
{
    BaseConstruct(viewId, viewMenuBarId, viewAcceleratorId);
}

void TestView::OnCreate()
{
    NameWindow(window, "view " + std::to_string(id));
    NoteOwn("OnCreate");
    if (onCreate) {
        onCreate();
    }
}

void TestView::OnDestroy()
{
    NoteOwn("OnDestroy");
}

void TestView::OnActivate(int32_t previousViewId)
{
    NoteOwn("OnActivate " + std::to_string(previousViewId));
}

void TestView::OnDeactivate()
{
    NoteOwn("OnDeactivate");
}

void TestView::OnPaint(HDC deviceContext)
{
    if (onPaint) {
        onPaint(deviceContext);
    }
}

void TestView::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    NoteOwn("OnCommand " + Numbers(commandId, notifyCode, control));
}

void TestView::OnInitMenuPopup(HMENU menu, uint32_t index)
{
    NoteOwn("OnInitMenuPopup " + Numbers(reinterpret_cast<UINT_PTR>(menu), index, 0));
}

LRESULT TestView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message >= messageNoted) {
        NoteOwn("WindowProc " + Numbers(message - messageNoted, wParam, lParam));
        return messageResult;
    }
    return CVireoView::WindowProc(message, wParam, lParam);
}
