// Checks the structure of a PNG file.
#pragma once

#include "tools/zrspack/PictureCheck.h"

bool IsPng(ByteView file);

// Checks every chunk's length, name and checksum, the header's fields, and the order of the chunks up to the
// end of the file. The compressed pixels themselves are not unpacked. Throws Refusal.
PictureInfo CheckPng(ByteView file);
