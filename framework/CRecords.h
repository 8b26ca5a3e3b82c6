// An array that owns the records its elements point to.
#pragma once

#include "framework/CArray.h"

template <typename T>
class CRecords : public CArray<T*>
{
  public:
    using CArray<T*>::CArray;
    ~CRecords() override { Clear(); }

    void Clear() { DeleteElements(*this); }
};
