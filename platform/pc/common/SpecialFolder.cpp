// The shell's special folders.
#include "platform/pc/common/SpecialFolder.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/SystemFunction.h"

#include <shlobj.h>

namespace handheld {

bool FindSpecialFolder(int folder, std::wstring& path)
{
    const std::wstring& startMenu = ActiveProfile().startMenu;
    if (folder == CSIDL_STARTMENU && !startMenu.empty()) {
        path = startMenu;
        return true;
    }
    static auto* const ask =
        SystemFunction<decltype(SHGetSpecialFolderPathW)>(L"shell32.dll", "SHGetSpecialFolderPathW");
    wchar_t pcPath[MAX_PATH] = {};
    if (!ask || !ask(nullptr, pcPath, folder, FALSE)) {
        return false;
    }
    path = pcPath;
    return true;
}

} // namespace handheld
