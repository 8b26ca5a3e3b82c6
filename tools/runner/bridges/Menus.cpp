// Menus.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

static Word DoTrackPopupMenu(Call& call)
{
    if (call.Argument(5) != 0) {
        call.guest.Misuse("the parameters of a pop-up menu are not carried across");
    }
    return static_cast<Word>(TrackPopupMenuEx(HandleAt<HMENU>(call, 0), call.Argument(1), call.Signed(2),
                                              call.Signed(3), HandleAt<HWND>(call, 4), nullptr));
}

static constexpr Bridge menuRows[] = {
    {"AppendMenuW", "u huht"},
    {"CreatePopupMenu", "g"},
    {"DestroyMenu", "u g"},
    {"TrackPopupMenuEx", DoTrackPopupMenu},
};

Bridges MenuBridges()
{
    return menuRows;
}

} // namespace runner
