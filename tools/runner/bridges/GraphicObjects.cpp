// Bitmaps, fonts and other objects of GDI.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

namespace {

struct Bitmap
{
    LONG type;
    LONG width;
    LONG height;
    LONG rowBytes;
    std::uint16_t planes;
    std::uint16_t bitsPerPixel;
    Word bits;
};
static_assert(sizeof(Bitmap) == 24);

} // namespace

static constexpr Word elsewhere =
    0xEEB00000; // in place of the pixels' address, which is not in the guest's memory

static Word DoCreateDibSection(Call& call)
{
    const Address info = call.Argument(1);
    const auto* header = static_cast<const BITMAPINFOHEADER*>(call.In(info, sizeof(BITMAPINFOHEADER)));
    NeedSize(call, header->biSize, sizeof(BITMAPINFOHEADER));
    // Behind the header: three masks of colours, or a table of them.
    const Word colours = header->biCompression == BI_BITFIELDS ? 3
                         : header->biBitCount <= 8 ? (header->biClrUsed != 0 ? Word{header->biClrUsed}
                                                                             : Word{1} << header->biBitCount)
                                                   : 0;
    const auto* whole =
        static_cast<const BITMAPINFO*>(call.In(info, sizeof(BITMAPINFOHEADER) + colours * wordSize));
    if (call.Argument(4) != 0) {
        call.guest.Misuse("a bitmap in a file's mapping is not carried across");
    }
    void* bits = nullptr;
    const HBITMAP bitmap =
        CreateDIBSection(HandleAt<HDC>(call, 0), whole, call.Argument(2), &bits, nullptr, call.Argument(5));
    if (bitmap && call.Argument(3) != 0) {
        call.guest.machine.memory.Write(call.Argument(3), elsewhere);
    }
    return call.Given(WordOf(bitmap));
}

static Word DoGetObject(Call& call)
{
    const HGDIOBJ object = HandleAt<HGDIOBJ>(call, 0);
    if (GetObjectType(object) == OBJ_BITMAP) {
        NeedSize(call, call.Argument(1), sizeof(Bitmap));
        BITMAP bitmap = {};
        if (GetObjectW(object, sizeof bitmap, &bitmap) == 0) {
            return 0;
        }
        call.RecordAt<Bitmap>(2).SetAll({bitmap.bmType, bitmap.bmWidth, bitmap.bmHeight, bitmap.bmWidthBytes,
                                         bitmap.bmPlanes, bitmap.bmBitsPixel, bitmap.bmBits ? elsewhere : 0});
        return sizeof(Bitmap);
    }
    if (GetObjectType(object) == OBJ_FONT) {
        NeedSize(call, call.Argument(1), sizeof(LOGFONTW));
    }
    LOGFONTW font = {};
    const int size = GetObjectW(object, sizeof font, &font);
    if (size != 0 && GetObjectType(object) == OBJ_FONT) {
        call.RecordAt<LOGFONTW>(2).SetAll(font);
        return sizeof(LOGFONTW);
    }
    return 0;
}

// The name's characters behind its zero are nobody's.
static Word DoCreateFont(Call& call)
{
    const auto record = call.RecordAt<LOGFONTW>(0);
    constexpr Word nameOffset = offsetof(LOGFONTW, lfFaceName);
    call.In(record.At(), nameOffset);
    call.TextAt(record.At() + nameOffset);
    LOGFONTW font;
    std::memcpy(&font, call.guest.machine.memory.Checked(record.At(), 4, sizeof font, Access::Look),
                sizeof font);
    return call.Given(WordOf(CreateFontIndirectW(&font)));
}

static bool IsSelectedInto(HDC context, HGDIOBJ object)
{
    const DWORD kind = GetObjectType(context);
    if (kind != OBJ_DC && kind != OBJ_MEMDC) {
        return false;
    }
    for (const UINT type : {OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_BITMAP}) {
        if (GetCurrentObject(context, type) == object) {
            return true;
        }
    }
    return false;
}

// The desktop deletes an object that is selected when it is so no more; the device refuses it, and it stays.
static Word DoDeleteObject(Call& call)
{
    const auto object = HandleOf<HGDIOBJ>(call.TakenBack(call.Argument(0)));
    for (const auto& [handle, entry] : call.guest.handles.Left()) {
        if (object && IsSelectedInto(HandleOf<HDC>(handle), object)) {
            call.guest.Misuse("an object that is still selected", call.Argument(0));
        }
    }
    return static_cast<Word>(DeleteObject(object));
}

static constexpr Bridge graphicObjectRows[] = {
    {"CreateCompatibleBitmap", "g hii"},   {"CreateDIBSection", DoCreateDibSection},
    {"CreateFontIndirectW", DoCreateFont}, {"DeleteObject", DoDeleteObject},
    {"GetObjectW", DoGetObject},           {"GetStockObject", "h i"},
};

Bridges GraphicObjectBridges()
{
    return graphicObjectRows;
}

} // namespace runner
