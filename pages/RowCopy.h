// What a command about a row acts on.
#pragma once

#include "framework/CArray.h"

// Copied before the command asks, tells or sends anything: all of these let messages in, and the records may
// be rebuilt and the page be gone before they return. Afterwards only the copy is used, and the page only
// when CVireoApp::HasMainWindow says that it is still there.
template <typename Identity>
struct SRowCopy
{
    int row = -1;
    Identity identity = {};

    explicit operator bool() const { return row != -1; }
};

// A record tells its identity with Identity(). A row without a record gives an empty copy.
template <typename Record>
auto CopyRow(const CArray<Record*>& records, int row)
{
    SRowCopy<decltype(records.At(0)->Identity())> copy;
    if (row >= 0 && row < static_cast<int>(records.Count())) {
        copy.row = row;
        copy.identity = records.At(static_cast<uint32_t>(row))->Identity();
    }
    return copy;
}
