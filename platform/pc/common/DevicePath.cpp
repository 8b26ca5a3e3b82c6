// Paths of the device on the PC.
#include "platform/pc/common/DevicePath.h"

#include "platform/pc/common/ActiveProfile.h"

#include <windows.h>

namespace handheld {

static std::wstring SystemDrive()
{
    wchar_t folder[MAX_PATH] = {};
    GetWindowsDirectoryW(folder, MAX_PATH);
    return std::wstring(folder).substr(0, 2); // "C:"
}

static bool IsOnDevice(std::wstring_view path)
{
    return !path.empty() && path[0] == L'\\' && (path.size() == 1 || path[1] != L'\\');
}

std::wstring DevicePathBelow(std::wstring_view root, std::wstring_view path)
{
    return IsOnDevice(path) ? std::wstring(root).append(path) : std::wstring(path);
}

// The profile is asked for paths of the device alone: the PC's may be used before it can be read.
std::wstring DevicePath(std::wstring_view path)
{
    if (!IsOnDevice(path)) {
        return std::wstring(path);
    }
    static const std::wstring drive = SystemDrive();
    const std::wstring& root = ActiveProfile().root;
    return DevicePathBelow(root.empty() ? drive : root, path);
}

} // namespace handheld
