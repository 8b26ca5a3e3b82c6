// CFileUtils: the program's folder and the existence of files.
#include "framework/CFileUtils.h"
#include "tests/support/Fatal.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TempFolder.h"

static const wchar_t* modulePath;

static DWORD WINAPI GiveModulePath(HMODULE module, wchar_t* path, DWORD size)
{
    if (module || !modulePath) {
        return 0;
    }
    wcsncpy(path, modulePath, size);
    return static_cast<DWORD>(wcslen(modulePath));
}

TEST(CFileUtilsTest, TheFolderIsTheModulePathUpToItsLastBackslash)
{
    const ImportHook hook("GetModuleFileNameW", GiveModulePath);
    CStr path(pathSize);
    modulePath = L"\\Program Files\\Quorvane\\Quorvane.exe";
    CFileUtils::MakeAppFolderPath(path);
    EXPECT_STREQ(L"\\Program Files\\Quorvane\\", path);
    CFileUtils::MakeAppFilePath(path, L"Quorvane.zrs");
    EXPECT_STREQ(L"\\Program Files\\Quorvane\\Quorvane.zrs", path);
    modulePath = L"\\Quorvane.exe";
    CFileUtils::MakeAppFolderPath(path);
    EXPECT_STREQ(L"\\", path);
}

TEST(CFileUtilsTest, AModulePathWithoutABackslashIsFatal)
{
    const ImportHook hook("GetModuleFileNameW", GiveModulePath);
    CStr path(pathSize);
    path = L"\\left from before\\";
    modulePath = L"Quorvane.exe";
    EXPECT_FATAL(CFileUtils::MakeAppFolderPath(path), L"CFileUtils::MakeAppFolderPath", L"Not found");
    modulePath = nullptr; // the call fails
    EXPECT_FATAL(CFileUtils::MakeAppFolderPath(path), L"CFileUtils::MakeAppFolderPath", L"Not found");
}

TEST(CFileUtilsTest, APathOfTheWholeBufferIsTerminated)
{
    const ImportHook hook("GetModuleFileNameW", GiveModulePath);
    CStr path(10);
    modulePath = L"\\234567\\9abcdef";
    CFileUtils::MakeAppFolderPath(path);
    EXPECT_STREQ(L"\\234567\\", path);
}

TEST(CFileUtilsTest, ADynamicStringIsFatal)
{
    CStr path;
    EXPECT_FATAL(CFileUtils::MakeAppFolderPath(path), L"CFileUtils::MakeAppFolderPath", L"Invalid value");
    EXPECT_FATAL(CFileUtils::MakeAppFilePath(path, L"x"), L"CFileUtils::MakeAppFolderPath", L"Invalid value");
}

TEST(CFileUtilsTest, TheCurrentDirectoryHasNoInfluence)
{
    const TempFolder folder;
    wchar_t before[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, before);
    CStr path(pathSize);
    CFileUtils::MakeAppFilePath(path, L"file.zrs");
    ASSERT_TRUE(SetCurrentDirectoryW(folder.Folder().c_str()));
    CStr elsewhere(pathSize);
    CFileUtils::MakeAppFilePath(elsewhere, L"file.zrs");
    EXPECT_STREQ(path, elsewhere);
    wchar_t real[MAX_PATH];
    GetModuleFileNameW(nullptr, real, MAX_PATH);
    wcscpy(wcsrchr(real, L'\\') + 1, L"file.zrs");
    EXPECT_STREQ(real, path);
    SetCurrentDirectoryW(before);
}

TEST(CFileUtilsTest, FileExistsFindsFilesFoldersAndPatterns)
{
    const TempFolder folder;
    folder.WriteFile(L"one.lnk", {});
    folder.MakeFolder(L"inner");
    EXPECT_TRUE(CFileUtils::FileExists(folder.Path(L"one.lnk").c_str()));
    EXPECT_TRUE(CFileUtils::FileExists(folder.Path(L"inner").c_str()));
    EXPECT_TRUE(CFileUtils::FileExists(folder.Path(L"*.lnk").c_str()));
    EXPECT_FALSE(CFileUtils::FileExists(folder.Path(L"*.exe").c_str()));
    EXPECT_FALSE(CFileUtils::FileExists(folder.Path(L"two.lnk").c_str()));
    EXPECT_FALSE(CFileUtils::FileExists(folder.Path(L"none\\*").c_str()));
}

static int openSearches;

static HANDLE WINAPI FindOne(const wchar_t*, WIN32_FIND_DATAW*)
{
    openSearches++;
    return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(0x1234));
}

static BOOL WINAPI EndSearch(HANDLE search)
{
    openSearches -= search == reinterpret_cast<HANDLE>(static_cast<INT_PTR>(0x1234));
    return TRUE;
}

TEST(CFileUtilsTest, TheSearchIsClosed)
{
    const ImportHook find("FindFirstFileW", FindOne);
    const ImportHook close("FindClose", EndSearch);
    EXPECT_TRUE(CFileUtils::FileExists(L"any"));
    EXPECT_EQ(openSearches, 0);
}
