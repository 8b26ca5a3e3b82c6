// LateFunction: a function that not every device's library exports, looked up when it is first called.
#pragma once

#include "platform/ce.h"

// A device without it is told so once, with what does not work there; the call then does nothing.
class LateFunction
{
    const wchar_t* library;
    const wchar_t* name; // null: the library exports it by its number alone
    WORD number = 0;
    const wchar_t* loss; // a whole sentence; null when nothing is lost
    void* address = nullptr;
    bool lookedUp = false;

    void LookUp();

  public:
    constexpr LateFunction(const wchar_t* fromLibrary, const wchar_t* itsName, const wchar_t* itsLoss)
        : library(fromLibrary), name(itsName), loss(itsLoss)
    {}
    constexpr LateFunction(const wchar_t* fromLibrary, WORD itsNumber, const wchar_t* itsLoss)
        : library(fromLibrary), name(nullptr), number(itsNumber), loss(itsLoss)
    {}
    LateFunction(const LateFunction&) = delete;
    LateFunction& operator=(const LateFunction&) = delete;

    // As a function of the given type; null when the device does not have it.
    template <class Function>
    Function* As()
    {
        LookUp();
        return reinterpret_cast<Function*>(address);
    }
};
