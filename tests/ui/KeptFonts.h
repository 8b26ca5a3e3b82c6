// The underlined fonts that the launcher page makes and never deletes, on purpose: one a life of the program.
#pragma once

#include "tests/support/Spy.h"

// One at a time.
class KeptFonts
{
    SPY(CreateFontIndirectW) create;

  public:
    std::vector<HFONT> underlined; // those that were made
    std::vector<LOGFONTW> all;     // what every font was made from

    KeptFonts();
    // False when one had been deleted before.
    bool Delete();
    void Forget();
};
