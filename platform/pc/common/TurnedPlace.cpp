// Where windows go when the screen is turned.
#include "platform/pc/common/TurnedPlace.h"

#include <algorithm>
#include <cstdlib>

namespace handheld {

namespace {

struct Span
{
    LONG begin;
    LONG end;
};

} // namespace

// The distance to the nearer edge stays, or the middle.
static Span TurnedSpan(const Span& place, const Span& before, const Span& after)
{
    const LONG length = std::min(place.end - place.begin, after.end - after.begin);
    const LONG room = after.end - after.begin - length;
    const LONG front = place.begin - before.begin;
    const LONG back = before.end - place.end;
    const LONG gap = std::abs(front - back) <= 1 ? room / 2 : front < back ? front : room - back;
    const LONG begin = after.begin + std::clamp<LONG>(gap, 0, room);
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
