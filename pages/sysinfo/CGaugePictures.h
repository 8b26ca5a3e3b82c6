// The pictures beside the gauges.
#pragma once

#include "framework/CResources.h"
#include "framework/Gdi.h"
#include "pages/sysinfo/SSysInfo.h"

class CGaugePictures
{
    struct SPair
    {
        GdiObject<HBITMAP> picture;
        GdiObject<HBITMAP> mask;
    };

    CResources& container;
    SPair pairs[sysInfoKinds];
    int side = 0; // pixels; 0 until they are loaded

  public:
    explicit CGaugePictures(CResources& pictureContainer) : container(pictureContainer) {}

    // Decodes the set of this size (32 or 48 pixels), once. A picture that is missing, broken or of another
    // size is not drawn.
    void Load(int pictureSide);
    // memory: any memory context, which has its own bitmap again afterwards. A kind without a picture draws
    // nothing.
    void Draw(HDC target, int x, int y, uint32_t kind, HDC memory) const;
};

// The container's id of a kind's picture; its mask has the next one.
uint32_t GaugePictureId(SysInfoKind kind, int side);
