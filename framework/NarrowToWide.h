// Narrow text to wide text by the framework's code page.
#pragma once

#include "platform/ce.h"

const UINT frameworkCodePage = CP_ACP;

// A new wide text, to be freed with delete[]; null for a null or empty text and for a failed conversion.
wchar_t* NarrowToWide(const char* text);
