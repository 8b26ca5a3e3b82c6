// Where a shortcut leads.
#include "platform/pc/coredll/ShortcutTarget.h"

#include "platform/pc/common/ShortcutText.h"
#include "platform/pc/coredll/Com.h"

#include <windows.h>

#include <shlobj.h>

static std::wstring TargetFromText(const wchar_t* shortcut)
{
    const HANDLE file =
        CreateFileW(shortcut, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return {};
    }
    char bytes[600];
    DWORD size = 0;
    if (!ReadFile(file, bytes, sizeof(bytes), &size, nullptr)) {
        size = 0;
    }
    CloseHandle(file);
    const std::string_view path = handheld::ShortcutTextPath({bytes, size});
    std::wstring target(path.size(), L'\0');
    const int length = MultiByteToWideChar(CP_ACP, 0, path.data(), static_cast<int>(path.size()),
                                           target.data(), static_cast<int>(target.size()));
    target.resize(static_cast<size_t>(length));
    return target;
}

// The shell's link object needs COM, which the caller's thread may not have started.
static std::wstring TargetFromShell(const wchar_t* shortcut)
{
    const HRESULT started = ce_CoInitializeEx(nullptr, 0);
    std::wstring target;
    IShellLinkW* link = nullptr;
    if (SUCCEEDED(CreateComObject(CLSID_ShellLink, IID_IShellLinkW, reinterpret_cast<void**>(&link)))) {
        IPersistFile* file = nullptr;
        if (SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)))) {
            wchar_t path[MAX_PATH] = {};
            if (SUCCEEDED(file->Load(shortcut, STGM_READ)) &&
                link->GetPath(path, MAX_PATH, nullptr, 0) == S_OK) {
                target = path;
            }
            file->Release();
        }
        link->Release();
    }
    if (SUCCEEDED(started)) {
        ce_CoUninitialize();
    }
    return target;
}

std::wstring ShortcutTarget(const wchar_t* shortcut)
{
    std::wstring target = TargetFromText(shortcut);
    return target.empty() ? TargetFromShell(shortcut) : target;
}
