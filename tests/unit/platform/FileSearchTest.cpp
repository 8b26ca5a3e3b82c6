// Searches for files, as a device answers them.
#include "platform/ce.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

class FileSearchTest : public testing::Test
{
  protected:
    using Names = std::vector<std::wstring>;

    // What is found by the path, sorted.
    static Names Found(const std::wstring& path, FINDEX_SEARCH_OPS limit = FindExSearchNameMatch)
    {
        Names names;
        WIN32_FIND_DATAW data = {};
        const HANDLE search = FindFirstFileExW(path.c_str(), FindExInfoStandard, &data, limit, nullptr, 0);
        for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &data)) {
            names.emplace_back(data.cFileName);
        }
        if (search != INVALID_HANDLE_VALUE) {
            EXPECT_EQ(GetLastError(), DWORD{ERROR_NO_MORE_FILES});
            EXPECT_TRUE(FindClose(search));
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    static void ExpectRefused(HANDLE search)
    {
        EXPECT_EQ(search, INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});
    }

    TempFolder folder;
};

TEST_F(FileSearchTest, EveryNameFitsExactlyNotOnlyTheFirst)
{
    for (const wchar_t* name : {L"a.lnk", L"b.lnkx", L"c.LNK", L"d.lnk.bak", L"e.txt"}) {
        folder.WriteFile(name, {});
    }
    folder.MakeFolder(L"f.lnk");
    EXPECT_EQ(Found(folder.Path(L"*.lnk")), (Names{L"a.lnk", L"c.LNK", L"f.lnk"}));
}

TEST_F(FileSearchTest, TheFoldersOwnNamesAreNeverFound)
{
    folder.WriteFile(L"a", {});
    folder.MakeFolder(L"b");
    EXPECT_EQ(Found(folder.Path(L"*")), (Names{L"a", L"b"}));
    EXPECT_EQ(Found(folder.Path(L"*"), FindExSearchLimitToDirectories), Names{L"b"});
}

TEST_F(FileSearchTest, ALimitToFoldersHoldsToTheEnd)
{
    for (const wchar_t* name : {L"a", L"c", L"e"}) {
        folder.WriteFile(name, {});
    }
    folder.MakeFolder(L"b");
    folder.MakeFolder(L"d");
    EXPECT_EQ(Found(folder.Path(L"*"), FindExSearchLimitToDirectories), (Names{L"b", L"d"}));
}

TEST_F(FileSearchTest, AFolderOfFilesHasNoFolders)
{
    folder.WriteFile(L"a", {});
    WIN32_FIND_DATAW data;
    EXPECT_EQ(FindFirstFileExW(folder.Path(L"*").c_str(), FindExInfoStandard, &data,
                               FindExSearchLimitToDirectories, nullptr, 0),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
}

TEST_F(FileSearchTest, HiddenFilesAndFoldersAreFound)
{
    SetFileAttributesW(folder.WriteFile(L"file.lnk", {}).c_str(), FILE_ATTRIBUTE_HIDDEN);
    SetFileAttributesW(folder.MakeFolder(L"inner").c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(Found(folder.Path(L"*.lnk")), Names{L"file.lnk"});
    EXPECT_EQ(Found(folder.Path(L"*"), FindExSearchLimitToDirectories), Names{L"inner"});
}

TEST_F(FileSearchTest, SearchesInsideOneAnotherKeepTheirPatterns)
{
    folder.WriteFile(L"a.txt", {});
    folder.WriteFile(L"b.lnk", {});
    folder.WriteFile(L"c.lnk", {});
    WIN32_FIND_DATAW data;
    const HANDLE outer = FindFirstFileW(folder.Path(L"*.lnk").c_str(), &data);
    ASSERT_NE(outer, INVALID_HANDLE_VALUE);
    EXPECT_EQ(Found(folder.Path(L"*.txt")), Names{L"a.txt"});
    ASSERT_TRUE(FindNextFileW(outer, &data));
    EXPECT_STREQ(data.cFileName + 1, L".lnk");
    EXPECT_FALSE(FindNextFileW(outer, &data));
    EXPECT_TRUE(FindClose(outer));
}

TEST_F(FileSearchTest, FoldersAreSearchedTwentyFiveDeep)
{
    std::wstring inner = folder.Folder();
    for (int depth = 0; depth < 25; depth++) {
        inner += L"\\n";
        ASSERT_TRUE(CreateDirectoryW(inner.c_str(), nullptr));
    }
    folder.WriteFile((inner.substr(folder.Folder().size() + 1) + L"\\a.lnk").c_str(), {});
    std::wstring path = folder.Folder();
    for (int depth = 0; depth < 25; depth++) {
        ASSERT_EQ(Found(path + L"\\*", FindExSearchLimitToDirectories), Names{L"n"});
        path += L"\\n";
    }
    EXPECT_EQ(Found(path + L"\\*.lnk"), Names{L"a.lnk"});
}

// The same folder by paths of different length.
TEST_F(FileSearchTest, APathThatIsTooLongFindsNothing)
{
    folder.WriteFile(L"a.lnk", {});
    const auto search = [&](size_t length) {
        std::wstring path = folder.Path(L"*");
        while (path.size() + 2 <= length) {
            path.insert(folder.Folder().size(), L"\\.");
        }
        path.append(length - path.size(), L'*');
        EXPECT_EQ(path.size(), length);
        return Found(path);
    };
    EXPECT_EQ(search(258), Names{L"a.lnk"});
    EXPECT_EQ(search(259), Names{L"a.lnk"});
    for (const size_t length : {260u, 261u, 300u, 40000u}) {
        EXPECT_EQ(search(length), Names{}) << length;
    }
}

TEST_F(FileSearchTest, OnlyWhatADeviceKnowsIsTaken)
{
    WIN32_FIND_DATAW data;
    const std::wstring path = folder.Path(L"*");
    folder.WriteFile(L"a", {});
    int criteria = 0;
    const auto search = [&](FINDEX_INFO_LEVELS level, WIN32_FIND_DATAW* found, FINDEX_SEARCH_OPS limit,
                            void* filter, DWORD flags) {
        SetLastError(0);
        return FindFirstFileExW(path.c_str(), level, found, limit, filter, flags);
    };
    ExpectRefused(search(FindExInfoBasic, &data, FindExSearchNameMatch, nullptr, 0));
    ExpectRefused(search(FindExInfoStandard, nullptr, FindExSearchNameMatch, nullptr, 0));
    ExpectRefused(search(FindExInfoStandard, &data, FindExSearchLimitToDevices, nullptr, 0));
    ExpectRefused(search(FindExInfoStandard, &data, FindExSearchNameMatch, &criteria, 0));
    ExpectRefused(search(FindExInfoStandard, &data, FindExSearchNameMatch, nullptr, 1));
    EXPECT_EQ(FindFirstFileW(nullptr, &data), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
}
