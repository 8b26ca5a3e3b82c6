// A picture of 2 x 1 pixels.
#include "tests/device/bridges/SmallPicture.h"

const SmallPictureFile smallPicture = {{
    'B',  'M',  62, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,                    // the file
    40,   0,    0,  0, 2, 0, 0, 0, 1, 0, 0,  0, 1, 0, 24, 0, 0, 0, 0, 0, // its size, of 24 bits a pixel
    8,    0,    0,  0, 0, 0, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0, 0, // no resolution, no colours
    0xFF, 0x80, 0,  0, 0, 0, 0, 0,                                       // the row
}};

IImage* ImageOf(void* block, UINT size)
{
    void* factory = nullptr;
    IImage* image = nullptr;
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    if (SUCCEEDED(CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IImagingFactory,
                                   &factory))) {
        auto* imaging = static_cast<IImagingFactory*>(factory);
        imaging->CreateImageFromBuffer(block, size, BufferDisposalFlagGlobalFree, &image);
        imaging->Release();
    }
    return image;
}
