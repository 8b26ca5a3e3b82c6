// A picture decoded from memory.
#pragma once

#include "platform/ce.h"

struct IWICImagingFactory;

// Decodes the first frame's header at once, so that bytes that are no picture fail here. On success the image
// disposes of the buffer as the flag says; on failure the buffer stays the caller's and *image is null.
HRESULT CreateImage(IWICImagingFactory* codecs, const void* buffer, UINT size, BufferDisposalFlag disposal,
                    IImage** image);
