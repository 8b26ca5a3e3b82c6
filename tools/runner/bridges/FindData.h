// What a search yields, as the device lays it out.
#pragma once

#include "tools/runner/bridges/Host.h"

namespace runner {

void GiveFindData(Call& call, Address address, const WIN32_FIND_DATAW& data);

} // namespace runner
