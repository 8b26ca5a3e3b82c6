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
    return call.Given(WordOf(dc));
}

static Word DoEndPaint(Call& call)
{
    const auto record = call.RecordAt<PaintStruct>(1);
    PAINTSTRUCT paint = {};
    paint.hdc = HandleOf<HDC>(call.TakenBack(record.Get(&PaintStruct::dc)));
    paint.fErase = static_cast<BOOL>(record.Get(&PaintStruct::erase));
    paint.rcPaint = record.Get(&PaintStruct::rect);
    return static_cast<Word>(EndPaint(HandleAt<HWND>(call, 0), &paint));
}

static constexpr Bridge paintingRows[] = {
    {"BeginPaint", DoBeginPaint},  {"BitBlt", "u hiiii hiiu"},  {"CreateCompatibleDC", "g h"},
    {"CreatePen", "g iiu"},        {"DeleteDC", "u g"},         {"DrawIconEx", "u hii hii uhu"},
    {"EndPaint", DoEndPaint},      {"FillRect", "u hp16r"},     {"GetDC", "g h"},
    {"GetSysColor", "d c"},        {"GetSysColorBrush", "h c"}, {"IntersectClipRect", "d hiiii"},
    {"InvalidateRect", "u hp16i"}, {"LineTo", "u hii"},         {"MoveToEx", "u hiiq8"},
    {"Rectangle", "u hiiii"},      {"ReleaseDC", "u hg"},       {"SelectObject", "h hh"},
    {"SetBkColor", "d hu"},        {"SetBkMode", "d hi"},       {"SetTextColor", "d hu"},
    {"UpdateWindow", "u h"},
};

Bridges PaintingBridges()
{
    return paintingRows;
}

} // namespace runner
