// The pictures beside the gauges.
#include "pages/sysinfo/CGaugePictures.h"

uint32_t GaugePictureId(SysInfoKind kind, int side)
{
    static constexpr uint32_t ids[sysInfoKinds] = {2, 0, 4, 6};
    return ids[kind] + (side == 48 ? 8 : 0);
}

static bool IsSquare(HBITMAP bitmap, int side)
{
    BITMAP measures = {};
    return GetObjectW(bitmap, sizeof measures, &measures) != 0 && measures.bmWidth == side &&
           measures.bmHeight == side;
}

void CGaugePictures::Load(int pictureSide)
{
    if (side != 0) {
        return;
    }
    side = pictureSide;
    for (uint32_t kind = 0; kind < sysInfoKinds; ++kind) {
        const uint32_t id = GaugePictureId(static_cast<SysInfoKind>(kind), side);
        SPair& pair = pairs[kind];
        pair.picture.Reset(container.LoadBitmap(id));
        pair.mask.Reset(container.LoadBitmap(id + 1));
        // A mask without as large a picture would leave a black square.
        if (!IsSquare(pair.picture, side) || !IsSquare(pair.mask, side)) {
            pair.picture.Reset(nullptr);
            pair.mask.Reset(nullptr);
        }
    }
}

void CGaugePictures::Draw(HDC target, int x, int y, uint32_t kind, HDC memory) const
{
    if (kind < sysInfoKinds && pairs[kind].picture != nullptr) {
        CResources::DrawMasked(target, x, y, side, side, memory, pairs[kind].picture, pairs[kind].mask);
    }
}
