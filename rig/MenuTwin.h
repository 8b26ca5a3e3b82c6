// MenuTwin: the menu that a test expects, opened by the test itself, to compare with and to find its lines
// by.
#pragma once

#include "rig/Picture.h"

#include <string>
#include <vector>

namespace rig {

struct MenuLine
{
    std::wstring text = {}; // without one: a separator
    bool greyed = false;
    bool opensMenu = false;
};

class MenuTwin
{
    Picture picture;
    RECT area = {};
    std::vector<RECT> lines;

  public:
    // Opens the menu at a point with TPM_... flags, takes its measures and its picture, and closes it again.
    MenuTwin(const std::vector<MenuLine>& expected, POINT place, UINT flags);

    // On the screen; all empty when the menu could not be opened.
    const RECT& Area() const { return area; }
    const Picture& Look() const { return picture; }
    POINT Middle(size_t line) const;
};

// The stylus, or mouse, is put where no menu is, so that no line is marked.
void ParkStylus();

} // namespace rig
