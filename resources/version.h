// Version of the program, in the one place that the resources and the about box read.
#pragma once

#define QV_VERSION_TEXT "1.0.0"
#define QV_VERSION_NUMBERS 1, 0, 0, 0
