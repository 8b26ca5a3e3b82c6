// Of the platform only its one header is for the program.
#include "platform/ce.h"
#include "platform/ce/Toolhelp.h"
