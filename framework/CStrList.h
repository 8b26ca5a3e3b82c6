// A list of strings that owns them.
#pragma once

#include "framework/CArray.h"
#include "framework/CStr.h"

QV_ARRAY_NAMES(class CStr*, "class CStr *");

class CStrList
{
  private:
    CArray<CStr*>* items;

  public:
    CStrList();
    ~CStrList();
    CStrList(const CStrList&) = delete;
    CStrList& operator=(const CStrList&) = delete;

    CStr& At(uint32_t index) { return *items->At(index); }
    uint32_t Count() const { return items->Count(); }
    void Append(const wchar_t* text); // a copy
    void Clear();
};
