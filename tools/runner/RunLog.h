// Where a run writes what it finds and counts.
#pragma once

#include "tools/runner/calls/Guest.h"

#include <cstdio>

namespace runner {

class RunLog : public Journal, public FindingSink
{
    const Guest* guest = nullptr;
    std::FILE* file = nullptr; // null: findings go to the standard error output alone

  public:
    // prefix: a file's path; the process's number is put behind it. Empty: no file.
    explicit RunLog(const std::wstring& prefix);
    RunLog(const RunLog&) = delete;
    RunLog& operator=(const RunLog&) = delete;

    // Whose symbols name the places.
    void SetGuest(const Guest& itsGuest) { guest = &itsGuest; }
    bool IsWritten() const { return file != nullptr; }
    void Write(const std::string& line) override;
    // To the standard error output too.
    void Tell(const std::string& line);
    // Of the host's code: the exception's code, where it stood, which address it used.
    void TellFault(Word code, std::uint64_t place, std::uint64_t address);
    // With what is left: counts, blocks, depth of the stack.
    void WriteEnd(Word exitCode) override;
    // What the guest has not given back.
    std::string Objects() const;

  private:
    void Take(const Finding& finding) override;
};

} // namespace runner
