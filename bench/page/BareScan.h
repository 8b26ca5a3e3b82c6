// The platform calls that reading the Start menu cannot do without, and nothing else.
#pragma once

#include "platform/ce.h"

#include <string>

class BareScan
{
    size_t shortcuts = 0;

  public:
    // The folder ends with a backslash.
    void Run(const std::wstring& folder);
    size_t Shortcuts() const { return shortcuts; }

  private:
    void ReadFolder(const std::wstring& folder);
};
