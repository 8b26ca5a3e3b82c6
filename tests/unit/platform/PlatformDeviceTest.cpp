// What the coredll substitute says about the device, its processes and its files.
#include "platform/ce.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

TEST(PlatformDeviceTest, TheSystemIsWindowsMobileFive)
{
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    ASSERT_TRUE(GetVersionExW(&version));
    EXPECT_EQ(version.dwMajorVersion, 5u);
    EXPECT_EQ(version.dwMinorVersion, 1u);
    EXPECT_EQ(version.dwBuildNumber, 195u);
    EXPECT_EQ(version.dwPlatformId, 3u);
}

TEST(PlatformDeviceTest, ThePlatformNameNeedsRoomForItsEnd)
{
    wchar_t name[260] = L"unchanged";
    EXPECT_FALSE(SystemParametersInfoW(SPI_GETPLATFORMTYPE, 3, name, 0));
    EXPECT_STREQ(name, L"unchanged");
    ASSERT_TRUE(SystemParametersInfoW(SPI_GETPLATFORMTYPE, 260, name, 0));
    const std::wstring whole = name;
    EXPECT_TRUE(whole == L"PocketPC" || whole == L"SmartPhone");
    const UINT length = static_cast<UINT>(whole.size());
    EXPECT_FALSE(SystemParametersInfoW(SPI_GETPLATFORMTYPE, length, name, 0));
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETPLATFORMTYPE, length + 1, name, 0));
}

TEST(PlatformDeviceTest, TheSystemFontHasNinePointsAndNormalWeight)
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    LOGFONTW font = {};
    ASSERT_NE(GetObjectW(GetStockObject(SYSTEM_FONT), sizeof font, &font), 0);
    EXPECT_EQ(font.lfHeight, -MulDiv(9, dpi, 72));
    EXPECT_EQ(font.lfWeight, FW_NORMAL);
}

TEST(PlatformDeviceTest, AProcessIdStandsForItsProgram)
{
    wchar_t own[MAX_PATH] = {};
    wchar_t byId[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(nullptr, own, MAX_PATH);
    ASSERT_GT(length, 0u);
    auto* id = reinterpret_cast<HMODULE>(static_cast<UINT_PTR>(GetCurrentProcessId()));
    EXPECT_EQ(GetModuleFileNameW(id, byId, MAX_PATH), length);
    EXPECT_STREQ(byId, own);
}

TEST(PlatformDeviceTest, AProcessThatHasGoneHasNoPath)
{
    wchar_t path[MAX_PATH] = L"stale";
    EXPECT_EQ(GetModuleFileNameW(reinterpret_cast<HMODULE>(UINT_PTR{0x7FFFFFF4}), path, MAX_PATH), 0u);
    EXPECT_STREQ(path, L"");
}

TEST(PlatformDeviceTest, AnOddHandleIsNoWindow)
{
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(IsWindow(window));
    // Another process's windows are known to the system by the upper bits alone.
    for (const HWND known : {window, GetDesktopWindow(), FindWindowW(L"Shell_TrayWnd", nullptr)}) {
        ASSERT_TRUE(IsWindow(known));
        EXPECT_FALSE(IsWindow(reinterpret_cast<HWND>(reinterpret_cast<UINT_PTR>(known) | 1)));
    }
    DestroyWindow(window);
    EXPECT_FALSE(IsWindow(window));
}

TEST(PlatformDeviceTest, ASearchFindsOnlyWhatMatchesExactly)
{
    const TempFolder folder;
    folder.WriteFile(L"c.lnkx", {});
    WIN32_FIND_DATAW data;
    EXPECT_EQ(FindFirstFileW(folder.Path(L"*.lnk").c_str(), &data), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    folder.WriteFile(L"d.lnk", {});
    HANDLE search = FindFirstFileW(folder.Path(L"*.lnk").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_STREQ(data.cFileName, L"d.lnk");
    FindClose(search);
    search = FindFirstFileW(folder.Path(L"*").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_NE(data.cFileName[0], L'.');
    FindClose(search);
}

TEST(PlatformDeviceTest, LetterCaseIsKnownInEveryScript)
{
    wchar_t text[] = L"\x041F\x00C9 Q";
    EXPECT_STREQ(_wcslwr(text), L"\x043F\x00E9 q");
    EXPECT_EQ(_wcsicmp(L"\x041F\x00C9 Q", text), 0);
    EXPECT_LT(_wcsicmp(L"Alpha", L"beta"), 0);
    EXPECT_GT(_wcsicmp(L"Beta", L"alpha"), 0);
    EXPECT_LT(_wcsicmp(L"a", L"AB"), 0);
    // A character outside the first plane is two.
    wchar_t face[] = L"\xD83D\xDE00Z";
    EXPECT_STREQ(_wcslwr(face), L"\xD83D\xDE00z");
    EXPECT_EQ(_wcsicmp(L"\xD83D\xDE00Z", L"\xD83D\xDE00z"), 0);
    EXPECT_NE(_wcsicmp(L"\xD83D\xDE00", L"\xD83D\xDE01"), 0);
}

TEST(PlatformDeviceTest, AKeyThatIsUpIsZero)
{
    // On the PC the lowest bit would still say that the key was pressed.
    keybd_event(VK_F24, 0, 0, 0);
    keybd_event(VK_F24, 0, KEYEVENTF_KEYUP, 0);
    EXPECT_EQ(GetAsyncKeyState(VK_F24), 0);
}
