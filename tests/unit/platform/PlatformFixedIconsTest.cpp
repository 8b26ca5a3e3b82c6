// The icons in front of the substitute's icon list. It is made at the first question about an icon, so the
// test asks a library of its own: a copy of the substitute that nobody has asked yet.
#include "platform/ce.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

static constexpr int fixedIcons = 9;
static constexpr int iconSize = 16;

static int additions;
static int iconsAddedSingly;
static int (*addBitmap)(HIMAGELIST, HBITMAP, HBITMAP);
static int (*addIcon)(HIMAGELIST, int, HICON);

static int CountBitmap(HIMAGELIST list, HBITMAP image, HBITMAP mask)
{
    ++additions;
    return addBitmap(list, image, mask);
}

static int CountIcon(HIMAGELIST list, int index, HICON icon)
{
    ++iconsAddedSingly;
    return addIcon(list, index, icon);
}

// The pixels of an icon on a ground of that colour.
static std::vector<COLORREF> Drawn(HIMAGELIST list, int icon, COLORREF ground)
{
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), iconSize, -iconSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    HDC memory = CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    const RECT all = {0, 0, iconSize, iconSize};
    SetBkColor(memory, ground);
    ExtTextOutW(memory, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    EXPECT_TRUE(ImageList_Draw(list, icon, memory, 0, 0, ILD_NORMAL));
    std::vector<COLORREF> pixels;
    for (int i = 0; i < iconSize * iconSize; i++) {
        pixels.push_back(GetPixel(memory, i % iconSize, i / iconSize));
    }
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    return pixels;
}

class OwnLibrary
{
    TempFolder folder;
    HMODULE module;

  public:
    OwnLibrary()
    {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(GetModuleHandleW(L"coredll.dll"), path, MAX_PATH);
        const std::wstring copy = folder.Path(L"unasked.dll");
        EXPECT_TRUE(CopyFileW(path, copy.c_str(), FALSE));
        module = LoadLibraryW(copy.c_str());
    }
    OwnLibrary(const OwnLibrary&) = delete;
    OwnLibrary& operator=(const OwnLibrary&) = delete;
    ~OwnLibrary() { FreeLibrary(module); }

    HMODULE Module() const { return module; }

    HIMAGELIST IconList() const
    {
        using Ask = DWORD_PTR(WINAPI*)(const wchar_t*, DWORD, SHFILEINFOW*, UINT, UINT);
        const auto ask =
            reinterpret_cast<Ask>(reinterpret_cast<void*>(GetProcAddress(module, "SHGetFileInfo")));
        SHFILEINFOW info = {};
        return reinterpret_cast<HIMAGELIST>(
            ask(L"\\", 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
    }
};

TEST(PlatformFixedIconsTest, AllAreAddedAtOnceAndEachIsAPictureOfItsOwn)
{
    const OwnLibrary library;
    ASSERT_NE(library.Module(), nullptr);
    const ImportHook bitmaps(library.Module(), "ImageList_Add", CountBitmap);
    const ImportHook icons(library.Module(), "ImageList_ReplaceIcon", CountIcon);
    addBitmap = bitmaps.Original<int(HIMAGELIST, HBITMAP, HBITMAP)>();
    addIcon = icons.Original<int(HIMAGELIST, int, HICON)>();

    HIMAGELIST list = library.IconList();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(additions, 1);
    EXPECT_EQ(iconsAddedSingly, 0);

    constexpr COLORREF white = RGB(255, 255, 255);
    constexpr COLORREF teal = RGB(0, 128, 128);
    std::set<std::vector<COLORREF>> different;
    for (int icon = 0; icon < fixedIcons; icon++) {
        const std::vector<COLORREF> onWhite = Drawn(list, icon, white);
        const std::vector<COLORREF> onTeal = Drawn(list, icon, teal);
        different.insert(onWhite);
        int opaque = 0;
        for (size_t i = 0; i < onWhite.size(); i++) {
            opaque += onWhite[i] == onTeal[i];
        }
        EXPECT_GT(opaque, 60) << icon;
        EXPECT_EQ(onWhite.front(), white) << icon;
        EXPECT_EQ(onTeal.front(), teal) << icon;
    }
    EXPECT_EQ(different.size(), static_cast<size_t>(fixedIcons));
}
