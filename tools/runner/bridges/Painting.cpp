// Painting: device contexts, what is drawn on them, and a window's turn to paint.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

namespace {

struct PaintStruct
{
    Word dc;
    Word erase;
    RECT rect;
    Word restore;
    Word update;
    std::uint8_t reserved[32];
};
static_assert(sizeof(PaintStruct) == 64);

} // namespace

static Word DoBeginPaint(Call& call)
{
    const auto record = call.RecordAt<PaintStruct>(1);
    PAINTSTRUCT paint = {};
    const HDC dc = BeginPaint(HandleAt<HWND>(call, 0), &paint);
    if (dc) {
        record.Set(&PaintStruct::dc, WordOf(paint.hdc));
        record.Set(&PaintStruct::erase, static_cast<Word>(paint.fErase));
        record.Set(&PaintStruct::rect, paint.rcPaint);
    }
    return WordOf(dc);
}

static Word DoEndPaint(Call& call)
{
    const auto record = call.RecordAt<PaintStruct>(1);
    PAINTSTRUCT paint = {};
    paint.hdc = HandleOf<HDC>(record.Get(&PaintStruct::dc));
    paint.fErase = static_cast<BOOL>(record.Get(&PaintStruct::erase));
    paint.rcPaint = record.Get(&PaintStruct::rect);
    return static_cast<Word>(EndPaint(HandleAt<HWND>(call, 0), &paint));
}

static constexpr Bridge bridges[] = {
    {"BeginPaint", DoBeginPaint},
    {"BitBlt", "u hiiii hiiu"},
    {"CreateCompatibleBitmap", "h hii"},
    {"CreateCompatibleDC", "h h"},
    {"CreateFontIndirectW", "h p92"},
    {"CreatePen", "h iiu"},
    {"DeleteDC", "u h"},
    {"DeleteObject", "u h"},
    {"DrawIconEx", "u hii hii uhu"},
    {"DrawTextW", "i htix16u"},
    {"EndPaint", DoEndPaint},
    {"ExtTextOutW", "u hiiup16buu"},
    {"FillRect", "u hp16r"},
    {"GetDC", "h h"},
    {"ReleaseDC", "u hh"},
};

Bridges PaintingBridges()
{
    return bridges;
}

} // namespace runner
