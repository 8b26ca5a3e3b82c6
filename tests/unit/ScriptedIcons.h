// A shell whose small-icon indexes are scripted.
#pragma once

#include "tests/support/ImportHook.h"

#include "platform/ce.h"

#include <map>
#include <string>
#include <vector>

// One at a time. The shell knows nothing about a path that is not in the script, and leaves the record
// untouched.
class ScriptedIcons
{
  public:
    std::map<std::wstring, int> indexes;
    std::vector<std::wstring> askedPaths;
    std::vector<UINT> askedFlags;

    ScriptedIcons();
    ~ScriptedIcons();
    ScriptedIcons(const ScriptedIcons&) = delete;
    ScriptedIcons& operator=(const ScriptedIcons&) = delete;

  private:
    ImportHook hook;
};
