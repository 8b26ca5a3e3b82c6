// A picture of 2 x 1 pixels as a file has it, and images of such a file.
#pragma once

#include "platform/ce.h"

struct SmallPictureFile
{
    BYTE bytes[62];
};
extern const SmallPictureFile smallPicture;

// The image takes the block over. Null when there is none.
IImage* ImageOf(void* block, UINT size);
