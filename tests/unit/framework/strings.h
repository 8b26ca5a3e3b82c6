// The string resources of the unit tests.
#pragma once

#define IDS_SHORT 1 // "abcde"
#define IDS_LONG 2  // 260 characters that begin with "0123456789"
#define IDS_MISSING 40000
