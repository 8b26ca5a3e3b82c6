// The handheld's keys.
#include "platform/pc/common/HandheldKeys.h"

namespace handheld {

// Home and End of the number pad stay what they are in lists and texts; those of a Pocket PC all do.
int HandheldKeyOf(const PcKey& key, bool isSmartphone)
{
    if (key.code >= VK_F5 && key.code < VK_F5 + buttonCount) {
        return firstButton + static_cast<int>(key.code - VK_F5);
    }
    if (key.code == VK_F12) {
        return listKey;
    }
    if (!isSmartphone || !key.extended) {
        return 0;
    }
    return key.code == VK_HOME ? homeKey : key.code == VK_END ? endKey : 0;
}

std::vector<KeyLine> ListKeys(bool isSmartphone)
{
    std::vector<KeyLine> lines = {{L"F1, F2", L"left and right soft key"},
                                  {L"Arrow keys", L"the direction pad"},
                                  {L"Enter", L"its middle, the action key"},
                                  {L"Escape", L"Back"},
                                  {L"F5 to F8", L"hardware buttons 1 to 4, also held"}};
    if (isSmartphone) {
        lines.push_back({L"Home", L"Home, also held"});
        lines.push_back({L"End", L"End: to the home screen"});
        lines.push_back({L"F1, then *", L"unlock locked keys"});
    } else {
        lines.push_back({L"F1, then Enter", L"unlock locked keys"});
    }
    lines.push_back({L"F12", L"this list"});
    return lines;
}

} // namespace handheld
