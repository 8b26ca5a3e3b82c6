// Keys that belong to the shell, and who gets them.
#pragma once

#include "platform/ce.h"

// Has the shell notice a button's new command: whoever claimed the button loses it, and nobody's window gets
// it.
void ReclaimButton(uint32_t vk);

// Takes the Smartphone's Home key from the shell: a window gets WM_HOTKEY when it goes down and when it comes
// up. A system without that is fatal; function: where the report says it happened.
void CaptureHomeKey(HWND window, const wchar_t* function);
void ReleaseHomeKey(HWND window);
