// The texts of the buttons' actions.
#include "keys/KeyActions.h"

const wchar_t* const keyActionTexts[keyActionCount] = {
    L"Don't handle",   L"Handle, do nothing",    L"Start application",  L"Task manager",
    L"Process viewer", L"System information",    L"App. Launcher",      L"Close current",
    L"Close all",      L"Close all but current", L"Screen rotate left", L"Screen rotate right",
    L"Lock keys",
};
