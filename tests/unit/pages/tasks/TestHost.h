// An application object without windows, for the pages' functions that ask it.
#pragma once

#include "framework/CVireoApp.h"
#include "lists/IPageHost.h"

#include <vector>

class TestHost : public CVireoApp, public IPageHost
{
  public:
    int knownIcons[8] = {-1, -1, -1, -1, -1, -1, -1, -1};
    std::vector<uint32_t> askedSlots;

    void SetPlatform(Platform kind) { platform = kind; }
    void SetMainWindow(HWND window) { mainWindow = window; }

    int KnownApplicationIcon(uint32_t slot) override
    {
        askedSlots.push_back(slot);
        return knownIcons[slot];
    }
    void ShowWindowReport(HWND) override {}
};
