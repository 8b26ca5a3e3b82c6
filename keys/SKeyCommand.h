// The record with which a second instance hands a button's command to the running one.
#pragma once

#include "platform/ce.h"

inline constexpr uint32_t keyCommandPathSize = 256; // characters, terminator included

// Payload of WM_COPYDATA; part of the external interface, the same bytes on every platform.
struct SKeyCommand
{
    int32_t vk; // virtual-key code of the button
    int32_t pressAction;
    int32_t holdAction;
    wchar_t pressApplication[keyCommandPathSize]; // zero-terminated
    wchar_t holdApplication[keyCommandPathSize];
};

static_assert(sizeof(wchar_t) == 2);
static_assert(sizeof(SKeyCommand) == 1036);

inline constexpr ULONG_PTR keyCommandData = 1; // dwData of the hand-over
