// A record that counts how many of its kind there are.
#pragma once

#include "framework/ArrayNames.h"

struct SCountedRecord
{
    static inline int alive = 0;
    SCountedRecord() { alive++; }
    ~SCountedRecord() { alive--; }
    SCountedRecord(const SCountedRecord&) = delete;
    SCountedRecord& operator=(const SCountedRecord&) = delete;
};

QV_ARRAY_NAMES(SCountedRecord*, "struct SCountedRecord *");
