// The shell library's functions that it exports without a name, so that only their numbers can be looked up.
#pragma once

// Until then a call of one of them does nothing.
void LookUpShellFunctions();
