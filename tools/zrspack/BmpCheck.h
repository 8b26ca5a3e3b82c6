// Checks the structure of a BMP file.
#pragma once

#include "tools/zrspack/PictureCheck.h"

bool IsBmp(ByteView file);

// Checks the two headers against each other and against the length of the file: palette and pixels must lie
// inside. Compressed bitmaps are refused. Throws Refusal.
PictureInfo CheckBmp(ByteView file);
