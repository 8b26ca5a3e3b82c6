// Texts that are drawn or measured.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

static constexpr Word allOfIt = 0xFFFFFFFF; // in place of a count: up to the zero

static const wchar_t* CountedText(Call& call, Address text, Word count)
{
    if (count == allOfIt) {
        return Wide(call.TextAt(text));
    }
    return static_cast<const wchar_t*>(call.In(text, count * sizeof(wchar_t), sizeof(wchar_t)));
}

static Word DoDrawText(Call& call)
{
    const Word flags = call.Argument(4);
    const auto record = call.RecordAt<RECT>(3);
    if ((flags & DT_MODIFYSTRING) != 0) {
        call.guest.Misuse("a text that is changed while it is drawn is not carried across", flags);
    }
    RECT rect = record.GetAll();
    const int height =
        DrawTextW(HandleAt<HDC>(call, 0), CountedText(call, call.Argument(1), call.Argument(2)),
                  call.Signed(2), &rect, flags);
    if ((flags & DT_CALCRECT) != 0) {
        record.SetAll(rect);
    }
    return static_cast<Word>(height);
}

static Word DoExtTextOut(Call& call)
{
    const Word count = call.Argument(6);
    const auto* rect = static_cast<const RECT*>(call.In(call.Argument(4), sizeof(RECT)));
    const auto* distances = static_cast<const INT*>(call.In(call.Argument(7), count * sizeof(INT)));
    const auto* text =
        static_cast<const wchar_t*>(call.In(call.Argument(5), count * sizeof(wchar_t), sizeof(wchar_t)));
    return static_cast<Word>(ExtTextOutW(HandleAt<HDC>(call, 0), call.Signed(1), call.Signed(2),
                                         call.Argument(3), rect, text, count, distances));
}

static Word DoGetTextExtent(Call& call)
{
    const Word count = call.Argument(2);
    const auto* text =
        static_cast<const wchar_t*>(call.In(call.Argument(1), count * sizeof(wchar_t), sizeof(wchar_t)));
    auto* fitting = static_cast<INT*>(call.Out(call.Argument(4), sizeof(INT)));
    auto* distances = static_cast<INT*>(call.Room(call.Argument(5), count * sizeof(INT)));
    const auto size = call.RecordAt<SIZE>(6);
    SIZE measured = {};
    const BOOL result = GetTextExtentExPointW(HandleAt<HDC>(call, 0), text, static_cast<int>(count),
                                              call.Signed(3), fitting, distances, &measured);
    if (result) {
        size.SetAll(measured);
        if (distances) {
            call.MarkWritten(call.Argument(5), (fitting ? static_cast<Word>(*fitting) : count) * sizeof(INT));
        }
    }
    return static_cast<Word>(result);
}

static constexpr Bridge textPaintingRows[] = {
    {"DrawTextW", DoDrawText},
    {"ExtTextOutW", DoExtTextOut},
    {"GetTextExtentExPointW", DoGetTextExtent},
    {"GetTextMetricsW", "u hq60"},
};

Bridges TextPaintingBridges()
{
    return textPaintingRows;
}

} // namespace runner
