// The box that the launcher's search is typed into.
#include "pages/start/CSearchBox.h"

#include "framework/CVireoApp.h"
#include "framework/WindowObject.h"
#include "pages/start/EditMenu.h"
#include "resources/ids.h"

static constexpr DWORD boxStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL;
static_assert(boxStyle == 0x50800080);
static constexpr uint32_t longestTyped = 254; // characters
static constexpr uint32_t longestRead = 255;  // another program may set more than can be typed

CSearchBox::~CSearchBox()
{
    if (window != nullptr) {
        // The box outlives this object by the rest of its parent's destruction.
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(originalProcedure));
        ForgetWindowObject(window);
    }
}

void CSearchBox::Construct(HWND parent)
{
    window = CreateWindowExW(0, L"Edit", nullptr, boxStyle, 0, 0, 0, 0, parent,
                             reinterpret_cast<HMENU>(static_cast<UINT_PTR>(IDC_SEARCH)),
                             CVireoApp::Current()->Instance(), nullptr);
    SendMessageW(window, EM_LIMITTEXT, longestTyped, 0);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    originalProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(BoxProc)));
}

void CSearchBox::Read()
{
    wchar_t text[longestRead + 1] = {};
    GetWindowTextW(window, text, longestRead + 1);
    typed = text;
    lowered = text;
    lowered.MakeLower();
}

LRESULT CALLBACK CSearchBox::BoxProc(HWND box, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* self = reinterpret_cast<CSearchBox*>(GetWindowLongPtrW(box, GWLP_USERDATA));
    WNDPROC original = self->originalProcedure;
    if (message == WM_LBUTTONDOWN) {
        const POINT point = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        if (IsTapAndHold(box, point)) {
            ShowEditMenu(box, point);
            return 0;
        }
    }
    return CallWindowProcW(original, box, message, wParam, lParam);
}
