// Functions that Windows Mobile adds to Windows CE, and a device without their component lacks.
#pragma once

// Until then, and where the device lacks one, a call of it fails.
void LookUpMobileFunctions();
