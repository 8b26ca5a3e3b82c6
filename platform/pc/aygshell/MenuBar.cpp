// MenuBar: the soft keys.
#include "platform/pc/aygshell/MenuBar.h"

#include "platform/pc/common/BarLook.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/common/SoftKeys.h"
#include "platform/pc/common/WindowObject.h"

namespace {

// A bar's strings with smaller ids are the shell's own words, as on the device.
constexpr UINT FirstProgramString = 100;

HINSTANCE ThisModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&ThisModule), &module);
    return module;
}

} // namespace

HWND MenuBar::Create(HWND owner, HINSTANCE resources, UINT resourceId)
{
    if (!RegisterWindowClass())
        return nullptr;
    auto* bar = new MenuBar;
    bar->m_owner = owner;
    if (resourceId != 0 && !bar->Load(resources, resourceId)) {
        delete bar;
        return nullptr;
    }
    const RECT screen = handheld::ScreenRect();
    const DWORD visible = IsWindowVisible(owner) ? WS_VISIBLE : 0;
    // From WM_NCCREATE on the window owns the object.
    const HWND window =
        CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, handheld::MenuBarClass, nullptr,
                        WS_POPUP | visible, screen.left, screen.bottom - handheld::BarHeight(),
                        screen.right - screen.left, handheld::BarHeight(), owner, nullptr, ThisModule(), bar);
    // At once: it takes the place of the bar that was just destroyed, and its owner may be busy for a while.
    if (window)
        UpdateWindow(window);
    return window;
}

MenuBar::~MenuBar()
{
    // The owner was destroyed below the open menu, whose loop would wait for ever. EndMenu asks the menu's
    // window, which goes with the owner too; the loop itself listens to the thread's message.
    if (m_menuOpen) {
        EndMenu();
        PostThreadMessageW(GetCurrentThreadId(), WM_CANCELMODE, 0, 0);
    }
    if (m_menu)
        DestroyMenu(m_menu);
    if (m_font)
        DeleteObject(m_font);
}

bool MenuBar::RegisterWindowClass()
{
    WNDCLASSW windowClass = {};
    if (GetClassInfoW(ThisModule(), handheld::MenuBarClass, &windowClass))
        return true;
    windowClass = {};
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = ThisModule();
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = handheld::MenuBarClass;
    return RegisterClassW(&windowClass) != 0;
}

bool MenuBar::Load(HINSTANCE resources, UINT resourceId)
{
    const HRSRC resource = FindResourceW(resources, MAKEINTRESOURCEW(resourceId), RT_RCDATA);
    if (!resource)
        return false;
    const HGLOBAL block = LoadResource(resources, resource);
    const void* data = block ? LockResource(block) : nullptr;
    if (!data || !handheld::ReadMenuBarResource(data, SizeofResource(resources, resource), m_resource))
        return false;
    for (size_t key = 0; key < m_texts.size() && key < m_resource.buttons.size(); ++key) {
        wchar_t text[64] = {};
        const UINT textId = m_resource.buttons[key].textId;
        LoadStringW(textId < FirstProgramString ? ThisModule() : resources, textId, text, 64);
        m_texts[key] = text;
    }
    m_menu = LoadMenuW(resources, MAKEINTRESOURCEW(m_resource.menuId));
    m_font = handheld::CreateScreenFont(9, FW_BOLD);
    return true;
}

RECT MenuBar::KeyRect(int key) const
{
    RECT rect;
    GetClientRect(m_window, &rect);
    const LONG middle = rect.right / 2;
    if (key == 0)
        rect.right = middle;
    else
        rect.left = middle;
    return rect;
}

int MenuBar::KeyAt(LPARAM position) const
{
    const POINT point = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    for (int key = 0; key < KeyCount; ++key) {
        const RECT rect = KeyRect(key);
        if (PtInRect(&rect, point))
            return key;
    }
    return NoKey;
}

bool MenuBar::IsUsable(int key) const
{
    return key >= 0 && static_cast<size_t>(key) < m_resource.buttons.size() &&
           (m_resource.buttons[static_cast<size_t>(key)].state & handheld::SoftKeyButton::Enabled) != 0;
}

void MenuBar::SetPressed(int key)
{
    if (m_pressed == key)
        return;
    m_pressed = key;
    InvalidateRect(m_window, nullptr, FALSE);
    UpdateWindow(m_window);
}

// A disabled owner waits for a dialog or a message box that has no bar of its own to cover this one.
void MenuBar::Press(int key)
{
    if (!IsUsable(key) || !IsWindowEnabled(m_owner))
        return;
    const handheld::SoftKeyButton& button = m_resource.buttons[static_cast<size_t>(key)];
    const HMENU menu =
        button.subMenu == handheld::SoftKeyButton::NoMenu ? nullptr : GetSubMenu(m_menu, button.subMenu);
    if (menu)
        OpenMenu(key, menu);
    else
        PostMessageW(m_owner, WM_COMMAND, button.command, reinterpret_cast<LPARAM>(m_window));
}

void MenuBar::OpenMenu(int key, HMENU menu)
{
    RECT bar;
    GetWindowRect(m_window, &bar);
    const UINT side = key == 0 ? TPM_LEFTALIGN : TPM_RIGHTALIGN;
    RECT place = KeyRect(key);
    MapWindowPoints(m_window, nullptr, reinterpret_cast<POINT*>(&place), 2);
    const HWND window = m_window;
    SetPressed(key);
    m_menuOpen = true;
    handheld::TrackMenu(menu, side | TPM_BOTTOMALIGN, key == 0 ? bar.left : bar.right, bar.top, m_owner,
                        nullptr, {key, place});
    // The owner and with it this bar may have gone while the menu was open.
    if (IsWindow(window)) {
        m_menuOpen = false;
        SetPressed(NoKey);
    }
}

void MenuBar::Paint(handheld::Surface& surface) const
{
    handheld::PaintBar(surface, surface.Client());
    for (int key = 0; key < KeyCount; ++key) {
        const RECT rect = KeyRect(key);
        if (key == m_pressed) {
            handheld::PaintPressedKey(surface, rect);
        }
        handheld::PaintKeyText(surface, rect, m_texts[static_cast<size_t>(key)], m_font, IsUsable(key));
    }
    if (!m_resource.buttons.empty()) {
        handheld::PaintKeyDivider(surface, surface.Client());
    }
}

LRESULT CALLBACK MenuBar::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* bar = handheld::ObjectOf<MenuBar>(window, message, lParam);
    if (!bar)
        return DefWindowProcW(window, message, wParam, lParam);
    bar->m_window = window;
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
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_PAINT: {
        handheld::Surface surface(m_window);
        Paint(surface);
        return 0;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (const int key = KeyAt(lParam); IsUsable(key) && IsWindowEnabled(m_owner)) {
            SetCapture(m_window);
            SetPressed(key);
        }
        return 0;
    case WM_LBUTTONUP:
        if (const int key = m_pressed; GetCapture() == m_window) {
            ReleaseCapture();
            SetPressed(NoKey);
            if (key == KeyAt(lParam))
                Press(key);
        }
        return 0;
    case WM_MOUSEMOVE:
        // The stylus was lifted where nobody told the bar.
        if (GetCapture() == m_window && (wParam & MK_LBUTTON) == 0)
            ReleaseCapture();
        return 0;
    case WM_CAPTURECHANGED:
        SetPressed(NoKey);
        return 0;
    case handheld::WM_PRESS_SOFT_KEY:
        Press(static_cast<int>(wParam));
        return 0;
    default:
        return DefWindowProcW(m_window, message, wParam, lParam);
    }
}
