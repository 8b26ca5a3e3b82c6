// The underlined fonts that the launcher page never deletes.
#include "tests/ui/KeptFonts.h"

KeptFonts::KeptFonts()
{
    create.instead = [this](const LOGFONTW* description) {
        HFONT font = create.Real(description);
        all.push_back(*description);
        if (description->lfUnderline != 0) {
            underlined.push_back(font);
        }
        return font;
    };
}

bool KeptFonts::Delete()
{
    bool deleted = true;
    for (HFONT font : underlined) {
        deleted = DeleteObject(font) && deleted;
    }
    Forget();
    return deleted;
}

void KeptFonts::Forget()
{
    create.calls.clear();
    std::vector<HFONT>().swap(underlined);
    std::vector<LOGFONTW>().swap(all);
}
