// What a new Start menu begins with.
#include "platform/pc/common/FirstShortcuts.h"

#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/Shortcut.h"
#include "platform/pc/common/StartMenuTree.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestKey.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <fstream>

using handheld::FillStartMenuOnce;
using handheld::ReadShortcut;
using handheld::ReadStartMenu;
using handheld::Shortcut;
using handheld::StartMenuTree;

static void CollectShortcuts(const StartMenuTree& tree, std::vector<std::wstring>& files)
{
    for (const auto& program : tree.programs) {
        files.push_back(program.shortcut);
    }
    for (const auto& folder : tree.folders) {
        CollectShortcuts(folder, files);
    }
}

static std::vector<std::wstring> ShortcutsIn(const std::wstring& menu)
{
    std::vector<std::wstring> files;
    CollectShortcuts(ReadStartMenu(menu), files);
    return files;
}

static std::string BytesOf(const std::wstring& file)
{
    std::ifstream stream(file.c_str(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

class FirstShortcutsTest : public testing::Test
{
  protected:
    const TempFolder folder;
    const TestKey key;
    const std::wstring menu = folder.Path(L"deep\\Start Menu");
    const std::wstring own = folder.MakeFolder(L"own");
    const std::wstring quorvane = menu + L"\\Quorvane.lnk";

    void SetUp() override { folder.WriteFile(L"own\\Quorvane.exe", {}); }
    void Fill() const { FillStartMenuOnce(menu, own, key.Below(L"Filled").c_str()); }
};

TEST_F(FirstShortcutsTest, EveryShortcutLeadsToAProgramThatIsThere)
{
    Fill();
    const std::vector<std::wstring> files = ShortcutsIn(menu);
    ASSERT_GE(files.size(), 3u);
    for (const std::wstring& file : files) {
        Shortcut shortcut;
        ASSERT_TRUE(ReadShortcut(file, shortcut)) << testing::PrintToString(file);
        EXPECT_NE(GetFileAttributesW(handheld::DevicePath(shortcut.path).c_str()), INVALID_FILE_ATTRIBUTES)
            << testing::PrintToString(shortcut.path);
    }
}

TEST_F(FirstShortcutsTest, BothFormsAreThereAndTheTextsCountTheirCommand)
{
    Fill();
    int texts = 0;
    int links = 0;
    for (const std::wstring& file : ShortcutsIn(menu)) {
        const std::string bytes = BytesOf(file);
        if (bytes.substr(0, 4) == std::string("L\0\0\0", 4)) {
            links++;
            continue;
        }
        texts++;
        const size_t sign = bytes.find("#\"\\"); // a path of the device, in quotes
        ASSERT_NE(sign, std::string::npos) << bytes;
        EXPECT_EQ(std::stoul(bytes), bytes.size() - sign - 1) << bytes;
        EXPECT_EQ(bytes.back(), '"') << bytes;
    }
    EXPECT_GE(texts, 2);
    EXPECT_GE(links, 1);
}

TEST_F(FirstShortcutsTest, WhatIsMissingGetsNoShortcut)
{
    DeleteFileW((own + L"\\Quorvane.exe").c_str());
    Fill();
    EXPECT_EQ(GetFileAttributesW(quorvane.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(ShortcutsIn(menu).empty());
}

TEST_F(FirstShortcutsTest, WhatTheUserTookAwayStaysAway)
{
    Fill();
    ASSERT_TRUE(DeleteFileW(quorvane.c_str()));
    Fill();
    EXPECT_EQ(GetFileAttributesW(quorvane.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FirstShortcutsTest, WhatTheUserPutThereIsLeftAlone)
{
    folder.MakeFolder(L"deep");
    folder.MakeFolder(L"deep\\Start Menu");
    folder.WriteFile(L"deep\\Start Menu\\Quorvane.lnk", {'m', 'i', 'n', 'e'});
    Fill();
    EXPECT_EQ(BytesOf(quorvane), "mine");
    EXPECT_GT(ShortcutsIn(menu).size(), 1u);
}

TEST_F(FirstShortcutsTest, EachMenuIsFilledForItself)
{
    Fill();
    const std::wstring other = folder.Path(L"Another");
    FillStartMenuOnce(other, own, key.Below(L"Filled").c_str());
    EXPECT_EQ(ShortcutsIn(other).size(), ShortcutsIn(menu).size());
}

TEST_F(FirstShortcutsTest, AMenuThatCannotBeMadeIsTriedAgainLater)
{
    folder.WriteFile(L"deep", {});
    Fill();
    ASSERT_TRUE(DeleteFileW(folder.Path(L"deep").c_str()));
    Fill();
    EXPECT_FALSE(ShortcutsIn(menu).empty());
}
