// The shell's small icons: one list for the whole program, with fixed icons in front and the programs' own
// behind them. The PC's list has no such fixed places, has none at all for "\" under Wine, and takes programs
// there for documents as long as no file types are registered.
#include "platform/pc/common/Screen.h"
#include "platform/pc/coredll/IconPainter.h"
#include "platform/pc/coredll/ShortcutTarget.h"

#include <commctrl.h>
#include <shellapi.h>
#include <shlwapi.h>

#include <unordered_map>

#undef SHGetFileInfo

namespace {

constexpr size_t MostPrograms = 1000; // a bound on what a program can make the list hold
constexpr int NoIcon = -1;

std::wstring Folded(const wchar_t* path)
{
    std::wstring folded(path);
    CharLowerW(folded.data());
    return folded;
}

class IconList
{
  public:
    IconList() : m_size(handheld::Scaled(16))
    {
        m_list = ImageList_Create(m_size, m_size, ILC_COLOR32 | ILC_MASK, FixedIconCount, 16);
        for (int icon = 0; icon < FixedIconCount; ++icon)
            Add(PaintFixedIcon(static_cast<FixedIcon>(icon), m_size));
    }
    IconList(const IconList&) = delete;
    IconList& operator=(const IconList&) = delete;

    HIMAGELIST Handle() const { return m_list; }

    // NoIcon for a path that names nothing.
    int IndexOf(const wchar_t* path)
    {
        if (lstrcmpW(path, L"\\") == 0)
            return IconFolder;
        const std::wstring key = Folded(path);
        if (const auto known = m_indexes.find(key); known != m_indexes.end())
            return known->second;
        const DWORD attributes = GetFileAttributesW(path);
        if (attributes == INVALID_FILE_ATTRIBUTES)
            return NoIcon;
        const int index = Find(path, attributes);
        if (m_indexes.size() < MostPrograms)
            m_indexes.emplace(key, index);
        return index;
    }

  private:
    // Destroys the icon.
    int Add(HICON icon)
    {
        const int index = icon ? ImageList_ReplaceIcon(m_list, -1, icon) : NoIcon;
        if (icon)
            DestroyIcon(icon);
        return index;
    }

    int Find(const wchar_t* path, DWORD attributes)
    {
        if (attributes & FILE_ATTRIBUTE_DIRECTORY)
            return PathIsRootW(path) ? IconDrive : IconFolder;
        const wchar_t* extension = PathFindExtensionW(path);
        if (lstrcmpiW(extension, L".lnk") == 0) {
            const std::wstring target = ShortcutTarget(path);
            const int index = target.empty() || IsShortcut(target) ? NoIcon : IndexOf(target.c_str());
            return index == NoIcon ? static_cast<int>(IconShortcut) : index;
        }
        if (lstrcmpiW(extension, L".exe") == 0)
            return OwnIcon(path);
        return IconDocument;
    }

    // A shortcut to a shortcut could lead round in a circle.
    static bool IsShortcut(const std::wstring& path)
    {
        return lstrcmpiW(PathFindExtensionW(path.c_str()), L".lnk") == 0;
    }

    int OwnIcon(const wchar_t* path)
    {
        if (m_indexes.size() >= MostPrograms)
            return IconProgram;
        HICON icon = nullptr;
        UINT id = 0;
        const UINT found = PrivateExtractIconsW(path, 0, m_size, m_size, &icon, &id, 1, 0);
        const int index = found == 1 && icon ? Add(icon) : NoIcon;
        return index == NoIcon ? static_cast<int>(IconProgram) : index;
    }

    int m_size; // pixels, both ways
    HIMAGELIST m_list;
    std::unordered_map<std::wstring, int> m_indexes; // by path, lower case
};

// Lives as long as the process: the program keeps the list's handle.
IconList& Icons()
{
    static IconList* const icons = new IconList;
    return *icons;
}

} // namespace

extern "C" DWORD_PTR WINAPI ce_SHGetFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info,
                                             UINT infoSize, UINT flags)
{
    if (flags != (SHGFI_SYSICONINDEX | SHGFI_SMALLICON))
        return SHGetFileInfoW(path, attributes, info, infoSize, flags);
    if (!path || !*path || !info)
        return 0;
    const int index = Icons().IndexOf(path);
    if (index == NoIcon)
        return 0;
    info->hIcon = nullptr;
    info->iIcon = index;
    return reinterpret_cast<DWORD_PTR>(Icons().Handle());
}
