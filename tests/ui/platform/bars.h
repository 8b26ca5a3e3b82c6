// The menu bars of the tests on soft keys.
#pragma once

#define IDB_SHELL_WORDS 901 // texts 3 and 6
#define IDB_OWN_WORDS 902   // the same words from the program's own strings
#define IDB_OTHER_SHELL_WORDS 903
#define IDB_OTHER_OWN_WORDS 904
#define IDS_TOOLS 1001
#define IDS_VIEW 1002
#define IDS_FILE 1003
#define IDS_GO 1004
