// An application object without windows, and the Start menu's programs, for the pages' functions that ask
// them.
#pragma once

#include "framework/CVireoApp.h"
#include "startmenu/CStartPrograms.h"

class TestHost : public CVireoApp
{
  public:
    CStartPrograms programs;

    void SetPlatform(Platform kind) { platform = kind; }
    void SetMainWindow(HWND window) { mainWindow = window; }

    // The well-known program of a slot has this icon; -1: it is not installed.
    void SetKnownIcon(uint32_t slot, int icon)
    {
        CArray<int>& slots = programs.KnownPrograms();
        while (slots.Count() <= slot) {
            slots.Append(-1);
        }
        if (icon == -1) {
            slots.At(slot) = -1;
            return;
        }
        auto* program = new SAppsList;
        program->icon = icon;
        slots.At(slot) = static_cast<int>(programs.Programs().Count());
        programs.Programs().Append(program);
    }
};
