// Calls do not know what serves them.
#include "tools/runner/bridges/Host.h"
