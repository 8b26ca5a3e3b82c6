// MenuBar: the soft keys.
#include "platform/pc/aygshell/MenuBar.h"

#include "platform/ce.h"
#include "platform/pc/common/BarLook.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/common/SoftKeys.h"
#include "platform/pc/common/WindowObject.h"

// A bar's strings with smaller ids are the shell's own words, as on the device.
static constexpr UINT firstProgramString = 100;

static HINSTANCE ThisModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&ThisModule), &module);
    return module;
}

RECT MenuBar::Place()
{
    RECT place = handheld::ScreenRect();
    place.top = place.bottom - handheld::BarHeight();
    return place;
}

HWND MenuBar::Create(HWND owner, HINSTANCE resources, UINT resourceId)
{
    if (!RegisterWindowClass()) {
        return nullptr;
    }
    auto* bar = new MenuBar;
    bar->owner = owner;
    if (resourceId != 0 && !bar->Load(resources, resourceId)) {
        delete bar;
        return nullptr;
    }
    const RECT place = Place();
    const DWORD visible = IsWindowVisible(owner) ? WS_VISIBLE : 0;
    // From WM_NCCREATE on the window owns the object.
    const HWND window = CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, handheld::menuBarClass, nullptr,
                                        WS_POPUP | visible, place.left, place.top, place.right - place.left,
                                        place.bottom - place.top, owner, nullptr, ThisModule(), bar);
    // At once: it takes the place of the bar that was just destroyed, and its owner may be busy for a while.
    if (window) {
        UpdateWindow(window);
    }
    return window;
}

MenuBar::~MenuBar()
{
    // The owner was destroyed below the open menu, whose loop would wait for ever. EndMenu asks the menu's
    // window, which goes with the owner too; the loop itself listens to the thread's message.
    if (menuOpen) {
        EndMenu();
        PostThreadMessageW(GetCurrentThreadId(), WM_CANCELMODE, 0, 0);
    }
    if (menu) {
        DestroyMenu(menu);
    }
    if (font) {
        DeleteObject(font);
    }
}

bool MenuBar::RegisterWindowClass()
{
    WNDCLASSW windowClass = {};
    if (GetClassInfoW(ThisModule(), handheld::menuBarClass, &windowClass)) {
        return true;
    }
    windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = ThisModule();
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = handheld::menuBarClass;
    return RegisterClassW(&windowClass) != 0;
}

bool MenuBar::Load(HINSTANCE resources, UINT resourceId)
{
    const HRSRC found = FindResourceW(resources, MAKEINTRESOURCEW(resourceId), RT_RCDATA);
    if (!found) {
        return false;
    }
    const HGLOBAL block = LoadResource(resources, found);
    const void* data = block ? LockResource(block) : nullptr;
    if (!data || !handheld::ReadMenuBarResource(data, SizeofResource(resources, found), resource)) {
        return false;
    }
    for (size_t key = 0; key < texts.size() && key < resource.buttons.size(); ++key) {
        wchar_t text[64] = {};
        const UINT textId = resource.buttons[key].textId;
        LoadStringW(textId < firstProgramString ? ThisModule() : resources, textId, text, 64);
        texts[key] = text;
    }
    menu = LoadMenuW(resources, MAKEINTRESOURCEW(resource.menuId));
    font = handheld::CreateScreenFont(9, FW_BOLD);
    return true;
}

RECT MenuBar::KeyRect(int key) const
{
    RECT rect;
    GetClientRect(window, &rect);
    const LONG middle = rect.right / 2;
    if (key == 0) {
        rect.right = middle;
    } else {
        rect.left = middle;
    }
    return rect;
}

int MenuBar::KeyAt(LPARAM position) const
{
    const POINT point = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    for (int key = 0; key < keyCount; ++key) {
        const RECT rect = KeyRect(key);
        if (PtInRect(&rect, point)) {
            return key;
        }
    }
    return noKey;
}

bool MenuBar::IsUsable(int key) const
{
    return key >= 0 && static_cast<size_t>(key) < resource.buttons.size() &&
           (resource.buttons[static_cast<size_t>(key)].state & handheld::SoftKeyButton::enabled) != 0;
}

void MenuBar::SetPressed(int key)
{
    if (pressed == key) {
        return;
    }
    pressed = key;
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
}

// A disabled owner waits for a dialog or a message box that has no bar of its own to cover this one.
void MenuBar::Press(int key)
{
    if (!IsUsable(key) || !IsWindowEnabled(owner)) {
        return;
    }
    const handheld::SoftKeyButton& button = resource.buttons[static_cast<size_t>(key)];
    const HMENU subMenu =
        button.subMenu == handheld::SoftKeyButton::noMenu ? nullptr : GetSubMenu(menu, button.subMenu);
    if (subMenu) {
        OpenMenu(key, subMenu);
    } else {
        PostMessageW(owner, WM_COMMAND, button.command, reinterpret_cast<LPARAM>(window));
    }
}

void MenuBar::OpenMenu(int key, HMENU subMenu)
{
    RECT edges;
    GetWindowRect(window, &edges);
    const UINT side = key == 0 ? TPM_LEFTALIGN : TPM_RIGHTALIGN;
    RECT place = KeyRect(key);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&place), 2);
    const HWND bar = window;
    SetPressed(key);
    menuOpen = true;
    handheld::TrackMenu(subMenu, side | TPM_BOTTOMALIGN, key == 0 ? edges.left : edges.right, edges.top,
                        owner, nullptr, {key, place});
    // The owner and with it this bar may have gone while the menu was open.
    if (IsWindow(bar)) {
        menuOpen = false;
        SetPressed(noKey);
    }
}

void MenuBar::Paint(handheld::Surface& surface) const
{
    handheld::PaintBar(surface, surface.Client());
    for (int key = 0; key < keyCount; ++key) {
        const RECT rect = KeyRect(key);
        if (key == pressed) {
            handheld::PaintPressedKey(surface, rect);
        }
        handheld::PaintKeyText(surface, rect, texts[static_cast<size_t>(key)], font, IsUsable(key));
    }
    if (!resource.buttons.empty()) {
        handheld::PaintKeyDivider(surface, surface.Client());
    }
}

UINT MenuBar::OverrideOf(WPARAM key) const
{
    const auto found = overrides.find(key);
    return found == overrides.end() ? 0 : found->second;
}

UINT MenuBar::OverrideKey(WPARAM key, UINT mask, UINT bits)
{
    const UINT previous = OverrideOf(key);
    overrides[key] = (previous & ~mask) | (bits & mask);
    return previous;
}

LRESULT CALLBACK MenuBar::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* bar = handheld::ObjectOf<MenuBar>(window, message, lParam);
    if (!bar) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    bar->window = window;
    if (message == WM_NCDESTROY) {
        handheld::ForgetObject(window);
        delete bar;
        return DefWindowProcW(window, message, wParam, lParam);
    }
    return bar->HandleMessage(message, wParam, lParam);
}

LRESULT MenuBar::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SETTINGCHANGE:
        if (wParam == WM_SETTINGCHANGE_RESET) {
            const RECT place = Place();
            SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left,
                         place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
        }
        return 0;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_PAINT: {
        handheld::Surface surface(window);
        Paint(surface);
        return 0;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (const int key = KeyAt(lParam); IsUsable(key) && IsWindowEnabled(owner)) {
            SetCapture(window);
            SetPressed(key);
        }
        return 0;
    case WM_LBUTTONUP:
        if (const int key = pressed; GetCapture() == window) {
            ReleaseCapture();
            SetPressed(noKey);
            if (key == KeyAt(lParam)) {
                Press(key);
            }
        }
        return 0;
    case WM_MOUSEMOVE:
        // The stylus was lifted where nobody told the bar.
        if (GetCapture() == window && (wParam & MK_LBUTTON) == 0) {
            ReleaseCapture();
        }
        return 0;
    case WM_CAPTURECHANGED:
        SetPressed(noKey);
        return 0;
    case handheld::WM_PRESS_SOFT_KEY:
        Press(static_cast<int>(wParam));
        return 0;
    case handheld::WM_ASK_KEY_OVERRIDE:
        return OverrideOf(wParam);
    case SHCMBM_OVERRIDEKEY:
        return OverrideKey(wParam, LOWORD(lParam), HIWORD(lParam));
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}
