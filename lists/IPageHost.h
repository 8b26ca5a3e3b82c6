// What pages and dialogs ask of the application above them, without knowing it.
#pragma once

#include "platform/ce.h"

class IPageHost
{
  public:
    // System small-icon index of a well-known built-in program (KnownApplication), or -1 when it is not
    // installed.
    virtual int KnownApplicationIcon(uint32_t slot) = 0;
    // The text report on any window, shown in the information dialog.
    virtual void ShowWindowReport(HWND window) = 0;

    // Set by the application while it exists.
    static IPageHost* Current() { return current; }

  protected:
    IPageHost() { current = this; }
    IPageHost(const IPageHost&) = delete;
    IPageHost& operator=(const IPageHost&) = delete;
    ~IPageHost() { current = nullptr; }

  private:
    inline static IPageHost* current = nullptr;
};

// Slots of the table of well-known built-in programs.
enum KnownApplication : uint32_t
{
    KnownContacts = 0,
    KnownCalendar = 1,
    KnownTasks = 2,
    KnownBrowser = 3,
    KnownPictures = 4,
    KnownPhone = 5,
    KnownInternetSharing = 6,
    KnownNotes = 7
};
