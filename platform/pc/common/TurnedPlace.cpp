// Where windows go when the screen is turned.
#include "platform/pc/common/TurnedPlace.h"

#include <algorithm>

namespace handheld {

namespace {

struct Span
{
    LONG begin;
    LONG end;
};

} // namespace

// The room on both sides keeps its proportion, so what touches an edge goes on touching it.
static Span TurnedSpan(const Span& place, const Span& before, const Span& after)
{
    const LONG length = std::min(place.end - place.begin, after.end - after.begin);
    const LONG room = before.end - before.begin - (place.end - place.begin);
    const LONG newRoom = after.end - after.begin - length;
    const LONG left = std::clamp<LONG>(place.begin - before.begin, 0, std::max<LONG>(room, 0));
    const LONG begin = after.begin + (room > 0 ? left * newRoom / room : newRoom / 2);
    return {begin, begin + length};
}

bool CoversScreen(const RECT& place, const ScreenChange& change)
{
    const RECT& area = change.before;
    return place.left == area.left && place.right == area.right && place.top == area.top &&
           (place.bottom == area.bottom || place.bottom == area.bottom - change.barHeight);
}

RECT TurnedPlace(const RECT& place, const ScreenChange& change)
{
    const RECT& before = change.before;
    const RECT& after = change.after;
    if (CoversScreen(place, change)) {
        return {after.left, after.top, after.right, after.bottom - (before.bottom - place.bottom)};
    }
    const Span across =
        TurnedSpan({place.left, place.right}, {before.left, before.right}, {after.left, after.right});
    const Span down =
        TurnedSpan({place.top, place.bottom}, {before.top, before.bottom}, {after.top, after.bottom});
    return {across.begin, down.begin, across.end, down.end};
}

} // namespace handheld
