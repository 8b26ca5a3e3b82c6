// The shell's small icons: one list for the whole program, with fixed icons in front and the programs' own
// behind them. The PC's list has no such fixed places, has none at all for "\" under Wine, and takes programs
// there for documents as long as no file types are registered.
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/common/Shortcut.h"
#include "platform/pc/common/SystemFunction.h"
#include "platform/pc/coredll/IconPainter.h"

#include <commctrl.h>
#include <shellapi.h>

#include <unordered_map>

#undef SHGetFileInfo

static constexpr size_t mostPrograms = 1000; // a bound on what a program can make the list hold
static constexpr int noIcon = -1;

static std::wstring Folded(std::wstring path)
{
    CharLowerW(path.data());
    return path;
}

static bool IsDrive(const wchar_t* path)
{
    return lstrlenW(path) == 3 && path[1] == L':' && path[2] == L'\\';
}

static bool HasExtension(const wchar_t* path, const wchar_t* extension)
{
    const wchar_t* dot = wcsrchr(path, L'.');
    return dot && lstrcmpiW(dot, extension) == 0;
}

class IconList
{
    int size; // pixels, both ways
    HIMAGELIST list;
    std::unordered_map<std::wstring, int> indexes; // by path, lower case

  public:
    IconList() : size(handheld::Scaled(16))
    {
        list = ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, FixedIconCount, 16);
        const HBITMAP fixedIcons = PaintFixedIcons(size);
        ImageList_Add(list, fixedIcons, nullptr); // at once: each call costs the same, however many it adds
        DeleteObject(fixedIcons);
    }
    IconList(const IconList&) = delete;
    IconList& operator=(const IconList&) = delete;

    HIMAGELIST Handle() const { return list; }

    // noIcon for a path that names nothing.
    int IndexOf(const wchar_t* path)
    {
        if (lstrcmpW(path, L"\\") == 0) {
            return IconFolder;
        }
        const std::wstring file = handheld::DevicePath(path);
        const std::wstring key = Folded(file);
        if (const auto known = indexes.find(key); known != indexes.end()) {
            return known->second;
        }
        const DWORD attributes = GetFileAttributesW(file.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES) {
            return noIcon;
        }
        const int index = Find(file.c_str(), attributes);
        // A shortcut may be changed, and the program remembers its icon itself.
        if (!HasExtension(path, L".lnk") && indexes.size() < mostPrograms) {
            indexes.emplace(key, index);
        }
        return index;
    }

  private:
    int Find(const wchar_t* path, DWORD attributes)
    {
        if (attributes & FILE_ATTRIBUTE_DIRECTORY) {
            return IsDrive(path) ? IconDrive : IconFolder;
        }
        if (handheld::HasShortcutExtension(path)) {
            handheld::Shortcut shortcut;
            // A shortcut to a shortcut could lead round in a circle.
            const bool leadsOn =
                handheld::ReadShortcut(path, shortcut) && !handheld::HasShortcutExtension(shortcut.path);
            const int index = leadsOn ? IndexOf(shortcut.path.c_str()) : noIcon;
            return index == noIcon ? static_cast<int>(IconShortcut) : index;
        }
        return HasExtension(path, L".exe") ? OwnIcon(path) : static_cast<int>(IconDocument);
    }

    int OwnIcon(const wchar_t* path)
    {
        if (indexes.size() >= mostPrograms) {
            return IconProgram;
        }
        HICON icon = nullptr;
        UINT id = 0;
        if (PrivateExtractIconsW(path, 0, size, size, &icon, &id, 1, 0) != 1 || !icon) {
            return IconProgram;
        }
        const int index = ImageList_ReplaceIcon(list, -1, icon);
        DestroyIcon(icon);
        return index == -1 ? static_cast<int>(IconProgram) : index;
    }
};

// Lives as long as the process: the program keeps the list's handle.
static IconList& Icons()
{
    static IconList* const icons = new IconList;
    return *icons;
}

extern "C" DWORD_PTR WINAPI ce_SHGetFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info,
                                             UINT infoSize, UINT flags)
{
    if (flags != (SHGFI_SYSICONINDEX | SHGFI_SMALLICON)) {
        static auto* const ask =
            handheld::SystemFunction<decltype(SHGetFileInfoW)>(L"shell32.dll", "SHGetFileInfoW");
        return ask ? ask(path, attributes, info, infoSize, flags) : 0;
    }
    if (!path || !*path || !info) {
        return 0;
    }
    const int index = Icons().IndexOf(path);
    if (index == noIcon) {
        return 0;
    }
    info->hIcon = nullptr;
    info->iIcon = index;
    return reinterpret_cast<DWORD_PTR>(Icons().Handle());
}
