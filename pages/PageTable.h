// The four pages: what commands, menus and the title strip call them, and the ring that the strip's arrows
// follow.
#pragma once

#include "platform/ce.h"
#include "resources/ids.h"

// The pages' view ids.
enum PageId : int32_t
{
    PageTasks = 1,
    PageSysInfo = 2,
    PageStart = 3,
    PageProcs = 4
};

struct SPage
{
    PageId id;
    uint32_t showCommand;
    const wchar_t* title;    // in the strip
    const wchar_t* menuText; // in the strip's menu
};

// In the order of the ring.
inline constexpr uint32_t pageCount = 4;
inline constexpr SPage pageRing[pageCount] = {
    {PageTasks, CMD_SHOW_TASKS, L"Running applications", L"Running apps"},
    {PageStart, CMD_SHOW_START, L"Start", L"Start"},
    {PageSysInfo, CMD_SHOW_SYSINFO, L"System information", L"System info"},
    {PageProcs, CMD_SHOW_PROCS, L"Processes", L"Processes"},
};

// Fatal "Not found" for any other id.
const SPage& PageOf(int32_t id);
// The page that a command shows; null when it shows none.
const SPage* PageOfCommand(uint32_t command);
// The page so many steps further in the ring; -1 is the one before.
PageId Neighbour(int32_t id, int steps);
