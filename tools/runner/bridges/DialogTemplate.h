// A dialog's template as the guest hands it over.
#pragma once

#include "tools/runner/bridges/Host.h"

namespace runner {

// The template, when all of it is there and is one that the device reads; else there is a finding.
const DLGTEMPLATE* CheckedTemplate(Call& call, Address address);

} // namespace runner
