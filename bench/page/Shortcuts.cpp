// A thousand shortcuts in forty folders of the Start menu.
#include "bench/page/Shortcuts.h"

#include <windows.h>

static constexpr int folderCount = 40;
static constexpr int shortcutsEach = 25;

static bool WriteShortcut(const std::wstring& path)
{
    static constexpr char text[] = "21#\\Windows\\notepad.exe";
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD written = 0;
    const BOOL done = WriteFile(file, text, sizeof(text) - 1, &written, nullptr);
    CloseHandle(file);
    return done && written == sizeof(text) - 1;
}

Shortcuts::Shortcuts(const std::wstring& startMenu)
{
    for (int folder = 0; folder < folderCount; folder++) {
        const std::wstring path = startMenu + L"Measured " + std::to_wstring(folder);
        if (!CreateDirectoryW(path.c_str(), nullptr)) {
            return;
        }
        folders.push_back(path);
        for (int i = 0; i < shortcutsEach; i++) {
            const std::wstring file = path + L"\\Application " + std::to_wstring(i) + L" of folder " +
                                      std::to_wstring(folder) + L".lnk";
            if (!WriteShortcut(file)) {
                return;
            }
            files.push_back(file);
        }
    }
}

Shortcuts::~Shortcuts()
{
    for (const std::wstring& file : files) {
        DeleteFileW(file.c_str());
    }
    for (const std::wstring& folder : folders) {
        RemoveDirectoryW(folder.c_str());
    }
}

bool Shortcuts::Complete() const
{
    return files.size() == static_cast<size_t>(folderCount * shortcutsEach);
}
