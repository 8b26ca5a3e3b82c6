// The shell's small icons as the coredll substitute gives them.
#include "platform/ce.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

static constexpr UINT smallIconIndex = SHGFI_SYSICONINDEX | SHGFI_SMALLICON;

static int CountOf(DWORD_PTR list)
{
    using Count = int(WINAPI*)(HIMAGELIST);
    const HMODULE library = GetModuleHandleW(L"comctl32.dll");
    const auto count =
        reinterpret_cast<Count>(reinterpret_cast<void*>(GetProcAddress(library, "ImageList_GetImageCount")));
    return count ? count(reinterpret_cast<HIMAGELIST>(list)) : -1;
}

// -1 when the path names nothing.
static int IndexOf(const wchar_t* path)
{
    SHFILEINFOW info = {};
    info.iIcon = -1;
    SHGetFileInfo(path, 0, &info, sizeof info, smallIconIndex);
    return info.iIcon;
}

TEST(PlatformShellIconsTest, TheRootHasTheListAndAnIcon)
{
    SHFILEINFOW info = {};
    info.iIcon = -1;
    const DWORD_PTR list = SHGetFileInfo(L"\\", 0, &info, sizeof info, smallIconIndex);
    ASSERT_NE(list, 0u);
    EXPECT_EQ(info.iIcon, 3);
    EXPECT_GE(CountOf(list), 9);
    EXPECT_EQ(SHGetFileInfo(L"C:\\windows", 0, &info, sizeof info, smallIconIndex), list);
    EXPECT_EQ(info.iIcon, 3);
}

TEST(PlatformShellIconsTest, AProgramWithoutAnIconHasTheGenericOne)
{
    const TempFolder folder;
    EXPECT_EQ(IndexOf(folder.WriteFile(L"plain.exe", {'M', 'Z'}).c_str()), 2);
}

TEST(PlatformShellIconsTest, AProgramWithAnIconHasItsOwnAndKeepsIt)
{
    const int index = IndexOf(L"C:\\windows\\system32\\notepad.exe");
    EXPECT_GE(index, 9);
    EXPECT_EQ(IndexOf(L"C:\\Windows\\System32\\NOTEPAD.EXE"), index);
}

TEST(PlatformShellIconsTest, AskingAgainAddsNoIcon)
{
    SHFILEINFOW info = {};
    const DWORD_PTR list = SHGetFileInfo(L"\\", 0, &info, sizeof info, smallIconIndex);
    IndexOf(L"C:\\windows\\system32\\notepad.exe");
    const int count = CountOf(list);
    EXPECT_GE(count, 10);
    for (int i = 0; i < 100; ++i) {
        IndexOf(L"C:\\windows\\system32\\notepad.exe");
    }
    EXPECT_EQ(CountOf(list), count);
}

TEST(PlatformShellIconsTest, APathThatNamesNothingLeavesTheIndexAlone)
{
    SHFILEINFOW info = {};
    info.iIcon = 77;
    EXPECT_EQ(SHGetFileInfo(L"C:\\no such.exe", 0, &info, sizeof info, smallIconIndex), 0u);
    EXPECT_EQ(SHGetFileInfo(L"", 0, &info, sizeof info, smallIconIndex), 0u);
    EXPECT_EQ(info.iIcon, 77);
}

TEST(PlatformShellIconsTest, AShortcutHasTheIconOfItsTarget)
{
    const TempFolder folder;
    const std::string text = "31#C:\\windows\\system32\\notepad.exe\r\n";
    const std::wstring link = folder.WriteFile(L"Editor.lnk", {text.begin(), text.end()});
    EXPECT_EQ(IndexOf(link.c_str()), IndexOf(L"C:\\windows\\system32\\notepad.exe"));
    const std::string lost = "9#\\gone.exe";
    EXPECT_EQ(IndexOf(folder.WriteFile(L"Lost.lnk", {lost.begin(), lost.end()}).c_str()), 6);
}

TEST(PlatformShellIconsTest, AnIconSizeThatCannotBeReadIsSmall)
{
    int width = -1;
    int height = -1;
    EXPECT_FALSE(ImageList_GetIconSize(nullptr, &width, &height));
    EXPECT_EQ(width, 16);
    EXPECT_EQ(height, 16);
}

TEST(PlatformShellIconsTest, AShortcutToAShortcutHasTheShortcutsIcon)
{
    const TempFolder folder;
    const std::wstring first = folder.Path(L"First.lnk");
    const std::wstring second = folder.Path(L"Second.lnk");
    const auto linkTo = [](const std::wstring& path) {
        const std::string target(path.begin(), path.end());
        const std::string text = std::to_string(target.size()) + "#" + target;
        return std::vector<unsigned char>(text.begin(), text.end());
    };
    folder.WriteFile(L"First.lnk", linkTo(second));
    folder.WriteFile(L"Second.lnk", linkTo(first));
    EXPECT_EQ(IndexOf(first.c_str()), 6);
    EXPECT_EQ(IndexOf(second.c_str()), 6);
}

TEST(PlatformShellIconsTest, ADriveIsNoFolder)
{
    EXPECT_EQ(IndexOf(L"C:\\"), 4);
    EXPECT_EQ(IndexOf(L"C:\\windows\\"), 3);
}

static int destroyedIcons;

static BOOL WINAPI CountDestroyed(HICON icon)
{
    ++destroyedIcons;
    using Destroy = BOOL(WINAPI*)(HICON);
    static const auto destroy = reinterpret_cast<Destroy>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "DestroyIcon")));
    return destroy(icon);
}

TEST(PlatformShellIconsTest, AnIconThatWasCopiedIntoTheListIsDestroyed)
{
    const ImportHook hook(GetModuleHandleW(L"coredll.dll"), "DestroyIcon", CountDestroyed);
    destroyedIcons = 0;
    EXPECT_GE(IndexOf(L"C:\\windows\\regedit.exe"), 9);
    EXPECT_EQ(destroyedIcons, 1);
}
