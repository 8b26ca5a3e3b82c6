// MenuBar: the window with the two soft keys at the bottom of the screen.
#pragma once

#include "platform/pc/common/MenuBarResource.h"
#include "platform/pc/common/Surface.h"

#include <windows.h>

#include <array>
#include <map>
#include <string>

class MenuBar
{
  public:
    // Fails with null when the resource or its menu is missing. resourceId 0 gives a bar without keys. The
    // window belongs to the owner and goes with it.
    static HWND Create(HWND owner, HINSTANCE resources, UINT resourceId);

    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

  private:
    static constexpr int keyCount = 2;
    static constexpr int noKey = -1;

    MenuBar() = default;
    ~MenuBar();

    static RECT Place();
    static bool RegisterWindowClass();
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    bool Load(HINSTANCE resources, UINT resourceId);
    RECT KeyRect(int key) const;
    int KeyAt(LPARAM position) const;
    bool IsUsable(int key) const;
    void SetPressed(int key);
    void Press(int key);
    void OpenMenu(int key, HMENU menu);
    void Paint(handheld::Surface& surface) const;
    UINT OverrideOf(WPARAM key) const;
    UINT OverrideKey(WPARAM key, UINT mask, UINT bits);
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);

    HWND window = nullptr;
    HWND owner = nullptr;
    handheld::MenuBarResource resource;
    std::array<std::wstring, keyCount> texts;
    HMENU menu = nullptr; // the bar's menu with a pop-up for each key that has one; destroyed at the end
    HFONT font = nullptr; // deleted at the end
    int pressed = noKey;
    std::map<WPARAM, UINT> overrides; // SHMBOF_ bits by virtual key
    bool menuOpen = false;
};
