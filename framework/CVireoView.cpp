// A full-screen page of the main window.
#include "framework/CVireoView.h"

#include "framework/Assert.h"
#include "framework/CStr.h"
#include "framework/CVireoApp.h"
#include "framework/Gdi.h"
#include "framework/WindowObject.h"

CVireoView::~CVireoView()
{
    // The window outlives the view by the rest of the main window's destruction.
    if (window != nullptr) {
        ForgetWindowObject(window);
    }
    if (accelerators != nullptr) {
        DestroyAcceleratorTable(accelerators);
    }
}

void CVireoView::OnCreate() {}

void CVireoView::OnDestroy() {}

void CVireoView::OnActivate(int32_t /*previousViewId*/) {}

void CVireoView::OnDeactivate() {}

void CVireoView::OnPaint(HDC /*deviceContext*/) {}

void CVireoView::OnCommand(uint32_t /*commandId*/, uint32_t /*notifyCode*/, LPARAM /*control*/) {}

void CVireoView::OnInitMenuPopup(HMENU /*menu*/, uint32_t /*index*/) {}

LRESULT CVireoView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcW(window, message, wParam, lParam);
}

void CVireoView::BaseConstruct(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId)
{
    CVireoApp* app = CVireoApp::Current();
    CStr className;
    CVireoApp::MakeAppBaseName(className);
    className.Append(L"V");
    className.AppendInt(viewId);

    WNDCLASSW windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = ViewWindowProc;
    windowClass.hInstance = app->Instance();
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    windowClass.lpszClassName = className;
    Assert(RegisterClassW(&windowClass) != 0, ErrorGeneric, L"CVireoView::BaseConstruct", __LINE__);

    id = viewId;
    menuBarId = viewMenuBarId;
    acceleratorId = viewAcceleratorId;
    if (acceleratorId != 0) {
        accelerators = LoadAcceleratorsW(app->Instance(), MAKEINTRESOURCEW(acceleratorId));
    }

    RECT client = {};
    GetClientRect(app->MainWindow(), &client);
    window = CreateWindowExW(0, className, className, WS_VISIBLE, client.left, client.top, client.right,
                             client.bottom, app->MainWindow(), nullptr, app->Instance(), this);
    AssertText(window != nullptr, L"Error creating view wnd", L"CVireoView::BaseConstruct", __LINE__);
    OnCreate();
    // The window already has its final size, so no size message will come to lay out the controls just made.
    SendMessageW(window, WM_SIZE, 0, MAKELPARAM(client.right, client.bottom));
    ShowWindow(window, SW_HIDE);
}

LRESULT CALLBACK CVireoView::ViewWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* view = WindowObject<CVireoView>(window, message, lParam);
    if (view == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    view->window = window;
    switch (message) {
    case WM_DESTROY:
        return 0;
    case WM_PAINT: {
        PaintDC paint(window);
        if (paint) {
            view->OnPaint(paint);
        }
        return 0;
    }
    case WM_COMMAND:
        view->OnCommand(LOWORD(wParam), HIWORD(wParam), lParam);
        return 0;
    default:
        return view->WindowProc(message, wParam, lParam);
    }
}
