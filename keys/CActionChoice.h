// One drop-down list of actions in the hardware keys dialogs.
#pragma once

#include "framework/CStr.h"
#include "platform/ce.h"

class CStartPrograms;

// Behind the actions stands the name of the application that "Start application" starts, once there is one.
class CActionChoice
{
    HWND list = nullptr;
    int32_t actionCount = 0;
    int32_t nameItem = -1; // the position of that name; -1: it is not there

  public:
    // Fills a control with the first so many actions and selects the first of them.
    void Fill(HWND dropDown, uint32_t count);
    // Selects an action, and none for a number that is not listed; of KeyActionStart the application's name,
    // which is put behind the actions first. A path without a dot, or without a backslash, gives no name.
    void Show(int32_t action, const CStr& application);
    // Takes over the action that the user has selected. "Start application" asks which, and who cancels that
    // leaves the button unhandled. False when there is nothing to show anew: the name was selected, which
    // stands for what is chosen already, or the dialog has gone meanwhile, with what was to be written.
    bool Take(HWND dialog, CStartPrograms& programs, int32_t& action, CStr& application);

    // Another item, without a change of what was chosen.
    void Select(int32_t item);

  private:
    void MakeRoomForLines();
    void RemoveName();
    void AddName(const CStr& application);
};
