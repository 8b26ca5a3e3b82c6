// ProgramCopy: the program's files in a folder of their own, for tests that spoil one of them.
#pragma once

#include <string>

namespace rig {

class ProgramCopy
{
    std::wstring folder;
    bool complete = false;

  public:
    // Quorvane.exe, Quorvane.zrs, the DLLs and the profiles.
    ProgramCopy();
    ~ProgramCopy();
    ProgramCopy(const ProgramCopy&) = delete;
    ProgramCopy& operator=(const ProgramCopy&) = delete;

    // False when a file could not be copied.
    bool Complete() const { return complete; }
    // Without a backslash at its end.
    const std::wstring& Folder() const { return folder; }
    std::wstring Path(const std::wstring& name) const { return folder + L"\\" + name; }
};

} // namespace rig
