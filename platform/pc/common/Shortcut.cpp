// Reading shortcuts.
#include "platform/pc/common/Shortcut.h"

#include "platform/pc/common/ComScope.h"
#include "platform/pc/common/ShortcutText.h"

#include <shlobj.h>

namespace handheld {

// The PC's form begins with its own length and the link object's class.
static constexpr std::string_view linkHeader("\x4C\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 20);

// Of a longer file only the beginning is looked at: a device's paths have 259 characters at most.
static constexpr DWORD longestLine = 4096;

static constexpr int longestText = 1024; // of the PC's form, in characters

static std::string Beginning(const std::wstring& path)
{
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return {};
    }
    std::string bytes(longestLine, '\0');
    DWORD size = 0;
    if (!ReadFile(file, bytes.data(), longestLine, &size, nullptr)) {
        size = 0;
    }
    CloseHandle(file);
    bytes.resize(size);
    return bytes;
}

static std::wstring Widened(std::string_view text)
{
    std::wstring wide(text.size(), L'\0');
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                                           static_cast<int>(wide.size()));
    wide.resize(static_cast<size_t>(length));
    return wide;
}

static bool ReadLinkObject(IShellLinkW& link, Shortcut& shortcut)
{
    wchar_t text[longestText] = {};
    if (link.GetPath(text, longestText, nullptr, 0) != S_OK || !*text) {
        return false;
    }
    shortcut.path = text;
    *text = L'\0';
    shortcut.arguments = SUCCEEDED(link.GetArguments(text, longestText)) ? text : L"";
    *text = L'\0';
    shortcut.folder = SUCCEEDED(link.GetWorkingDirectory(text, longestText)) ? text : L"";
    return true;
}

static bool ReadLink(const std::wstring& path, Shortcut& shortcut)
{
    // The first link keeps COM and the shell's library for the process: each would load them anew otherwise.
    static const ComScope* const kept = new ComScope;
    static_cast<void>(kept);
    const ComScope com;
    auto* const link = ComScope::Create<IShellLinkW>(CLSID_ShellLink, IID_IShellLinkW);
    if (!link) {
        return false;
    }
    bool known = false;
    IPersistFile* file = nullptr;
    if (SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)))) {
        known = SUCCEEDED(file->Load(path.c_str(), STGM_READ)) && ReadLinkObject(*link, shortcut);
        file->Release();
    }
    link->Release();
    return known;
}

bool HasShortcutExtension(const std::wstring& path)
{
    static constexpr size_t length = 4;
    return path.size() >= length && lstrcmpiW(path.c_str() + path.size() - length, L".lnk") == 0;
}

bool ReadShortcut(const std::wstring& file, Shortcut& shortcut)
{
    const std::string bytes = Beginning(file);
    if (std::string_view(bytes).substr(0, linkHeader.size()) == linkHeader) {
        if (!ReadLink(file, shortcut)) {
            return false;
        }
        const bool hasBlanks = shortcut.path.find(L' ') != std::wstring::npos;
        shortcut.command = hasBlanks ? L'"' + shortcut.path + L'"' : shortcut.path;
        if (!shortcut.arguments.empty()) {
            shortcut.command += L' ' + shortcut.arguments;
        }
        return true;
    }
    shortcut.command = Widened(ShortcutTextCommand(bytes));
    const CommandParts parts = SplitCommand(shortcut.command);
    shortcut.path = parts.path;
    shortcut.arguments = parts.arguments;
    shortcut.folder.clear();
    return !shortcut.path.empty();
}

} // namespace handheld
