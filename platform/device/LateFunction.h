// LateFunction: a function that not every device's library exports, looked up when the program starts.
#pragma once

#include "platform/ce.h"

// What a library calls it. LateExports.h, which the build makes from the lists of imports, has one for each.
struct LateExport
{
    const wchar_t* library;
    const wchar_t* name; // null: the library exports it by its number alone
    WORD number;
};

// A device without it is told so, with what does not work there, unless nobody would miss it; the call then
// does nothing.
class LateFunction
{
    const LateExport& wanted;
    const wchar_t* loss; // a whole sentence; null when nobody would miss it
    bool (*isMissed)();  // whether this device would miss it; null when any would
    void* address = nullptr;

  public:
    constexpr LateFunction(const LateExport& itsExport, const wchar_t* itsLoss,
                           bool (*itIsMissed)() = nullptr)
        : wanted(itsExport), loss(itsLoss), isMissed(itIsMissed)
    {}
    LateFunction(const LateFunction&) = delete;
    LateFunction& operator=(const LateFunction&) = delete;

    // Before the program begins: a box has a message loop, and within a call of the program's that loop could
    // close the window, and with it what the call still needs.
    void LookUp();

    // As a function of the given type; null when the device does not have it.
    template <class Function>
    Function* As() const
    {
        return reinterpret_cast<Function*>(address);
    }
};
