// The storage cards of the handheld.
#include "platform/pc/handheld/Cards.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/DevicePath.h"

#include <windows.h>

void MakeCards()
{
    for (const std::wstring& card : handheld::ActiveProfile().cards) {
        if (!card.empty() && card.find_first_of(L"\\/:") == std::wstring::npos && card != L"." &&
            card != L"..") {
            CreateDirectoryW(handheld::DevicePath(L"\\" + card).c_str(), nullptr);
        }
    }
}
