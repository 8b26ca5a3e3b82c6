// Which trap serves a function that the guest imports.
#pragma once

#include "tools/runner/calls/Guest.h"

#include <string>

namespace runner {

// A library's function, by its name ("GetDC") or its number ("#9"). Library: as the guest has it, the ending
// ".dll" or not. 0 when the lists of imports do not have it, when the substitute lacks it, or when it is one
// that this run does without.
Address BindImport(Guest& guest, const std::string& library, const std::string& name);

// The host's library that stands in for one of the device's; empty for one that the device does not have.
std::string HostLibraryOf(const std::string& library);

// Functions that this run's device lacks, for tests of late functions: "aygshell#84" or "coredll.GetX",
// separated by commas.
void DoWithout(const std::string& list);

} // namespace runner
