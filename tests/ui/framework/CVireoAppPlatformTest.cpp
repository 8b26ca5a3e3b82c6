// CVireoApp: what it finds out about its platform, its own name and an earlier instance.
#include "tests/support/Fatal.h"
#include "tests/support/TestHeap.h"
#include "tests/ui/UiTest.h"

#include <cwchar>

class CVireoAppPlatformTest : public UiTest
{
  protected:
    BOOL versionKnown = TRUE;
    DWORD platformId = VER_PLATFORM_WIN32_CE;
    const wchar_t* platformName = L"PocketPC"; // null: the query fails

    // What an application found out on a system like that; the application has ended since.
    void Detect(TestApp& app)
    {
        const SPY(GetVersionExW) version([this](OSVERSIONINFOW* info) {
            info->dwMajorVersion = 6;
            info->dwMinorVersion = 7;
            info->dwBuildNumber = 89;
            info->dwPlatformId = platformId;
            return versionKnown;
        });
        const SPY(SystemParametersInfoW) parameters([this](UINT action, UINT size, void* buffer, UINT) {
            EXPECT_EQ(action, 257U);
            EXPECT_EQ(size, 260U);
            if (platformName != nullptr) {
                wcscpy(static_cast<wchar_t*>(buffer), platformName);
            }
            return platformName != nullptr;
        });
        app.create = [] { return false; };
        EXPECT_EQ(app.Start(), -1);
        DestroyWindow(app.MainWindow());
        ForgetClasses();
    }

    Platform DetectPlatform(const wchar_t* name)
    {
        platformName = name;
        TestApp app;
        app.platform = Platform::Unknown;
        Detect(app);
        return app.platform;
    }

    void ExpectNothingKnown()
    {
        TestApp app;
        app.platform = Platform::PocketPC;
        app.osMajor = app.osMinor = app.osBuild = 1;
        Detect(app);
        EXPECT_EQ(app.platform, Platform::Unknown);
        EXPECT_EQ(app.osMajor, 0U);
        EXPECT_EQ(app.osMinor, 0U);
        EXPECT_EQ(app.osBuild, 0U);
    }
};

TEST_F(CVireoAppPlatformTest, ThePlatformIsReadFromItsNameInAnyCase)
{
    EXPECT_EQ(DetectPlatform(L"PocketPC"), Platform::PocketPC);
    EXPECT_EQ(DetectPlatform(L"My POCKETPC 2"), Platform::PocketPC);
    EXPECT_EQ(DetectPlatform(L"SmartPhone"), Platform::Smartphone);
    EXPECT_EQ(DetectPlatform(L"smartphone"), Platform::Smartphone);
    EXPECT_EQ(DetectPlatform(L"Handheld"), Platform::Unknown);
}

TEST_F(CVireoAppPlatformTest, ANameWithBothWordsIsASmartphone)
{
    EXPECT_EQ(DetectPlatform(L"PocketPC SmartPhone"), Platform::Smartphone);
    EXPECT_EQ(DetectPlatform(L"SmartPhone PocketPC"), Platform::Smartphone);
}

TEST_F(CVireoAppPlatformTest, TheVersionIsKeptWithAnyPlatformName)
{
    platformName = L"Handheld";
    TestApp app;
    Detect(app);
    EXPECT_EQ(app.osMajor, 6U);
    EXPECT_EQ(app.osMinor, 7U);
    EXPECT_EQ(app.osBuild, 89U);
}

TEST_F(CVireoAppPlatformTest, NothingIsKnownWithoutAVersion)
{
    versionKnown = FALSE;
    ExpectNothingKnown();
}

TEST_F(CVireoAppPlatformTest, NothingIsKnownOfAnotherSystem)
{
    platformId = VER_PLATFORM_WIN32_NT;
    ExpectNothingKnown();
}

TEST_F(CVireoAppPlatformTest, NothingIsKnownWithoutAPlatformName)
{
    platformName = nullptr;
    ExpectNothingKnown();
}

TEST_F(CVireoAppPlatformTest, TheShellLibraryIsStartedOnceBeforeThePlatformIsAskedFor)
{
    static int startups;
    startups = 0;
    const ImportHook startup(
        "aygshell.dll", 9, +[]() -> BOOL {
            startups++;
            return FALSE;
        });
    const SPY(GetVersionExW) version([&](OSVERSIONINFOW* info) {
        EXPECT_EQ(startups, 1);
        return version.Real(info);
    });
    EXPECT_EQ(InApp([](TestApp&) {}), 0);
    EXPECT_EQ(startups, 1);
    EXPECT_EQ(version.calls.size(), 1U);
}

TEST_F(CVireoAppPlatformTest, TheBaseNameLiesBetweenTheLastBackslashAndTheLastDot)
{
    const SPY(GetModuleFileNameW) path([](HMODULE module, wchar_t* buffer, DWORD) -> DWORD {
        EXPECT_EQ(module, nullptr);
        wcscpy(buffer, L"\\Program Files\\My.App\\My.Tool.exe");
        return static_cast<DWORD>(wcslen(buffer));
    });
    CStr name;
    CVireoApp::MakeAppBaseName(name);
    EXPECT_STREQ(name, L"My.Tool");
    EXPECT_EQ(path.calls.size(), 1U);
}

TEST_F(CVireoAppPlatformTest, AMissingBaseNameIsFatal)
{
    CStr name;
    for (const wchar_t* path : {L"Tool.exe", L"\\Tool", L"\\.exe", L"\\My.App\\Tool", L""}) {
        EXPECT_FATAL(CVireoApp::MakeBaseName(name, path), L"CVireoApp::MakeAppBaseName", L"Not found");
    }
}

TEST_F(CVireoAppPlatformTest, WithoutMemoryForItsArraysTheApplicationIsFatal)
{
    // An array takes two blocks: itself and its slots. The report needs none.
    for (const uint32_t successes : {0U, 2U}) {
        EXPECT_FATAL(
            {
                const AllocationFailure failure(successes);
                CVireoApp app;
            },
            L"CVireoApp::CVireoApp", L"Not enough memory");
    }
}

TEST_F(CVireoAppPlatformTest, TheArraysStartWithEightPlacesAndNoEntry)
{
    TestApp app;
    ASSERT_NE(app.views, nullptr);
    ASSERT_NE(app.dialogs, nullptr);
    EXPECT_EQ(app.views->Count(), 0U);
    EXPECT_EQ(app.dialogs->Count(), 0U);
    EXPECT_EQ(app.views->Capacity(), 8U);
    EXPECT_EQ(app.dialogs->Capacity(), 8U);
    for (int i = 0; i < 9; i++) {
        app.views->Append(nullptr);
        app.dialogs->Append(nullptr);
    }
    EXPECT_EQ(app.views->Capacity(), 16U);
    EXPECT_EQ(app.dialogs->Capacity(), 16U);
}

TEST_F(CVireoAppPlatformTest, TheApplicationIsTheCurrentOneWhileItExists)
{
    EXPECT_EQ(CVireoApp::Current(), nullptr);
    {
        const TestApp app;
        EXPECT_EQ(CVireoApp::Current(), &app);
    }
    EXPECT_EQ(CVireoApp::Current(), nullptr);
}

TEST_F(CVireoAppPlatformTest, WithoutAnEarlierInstanceTheStartGoesOn)
{
    const SPY(SetForegroundWindow) foreground;
    CVireoApp app;
    EXPECT_TRUE(app.CheckPrevInstance(nullptr, L""));
    EXPECT_TRUE(foreground.calls.empty());
}

TEST_F(CVireoAppPlatformTest, AnEarlierInstanceComesForwardWithItsPopups)
{
    const SPY(SetForegroundWindow) foreground([](HWND) { return TRUE; });
    CVireoApp app;
    auto* const earlier = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x1234));
    EXPECT_FALSE(app.CheckPrevInstance(earlier, L""));
    ASSERT_EQ(foreground.calls.size(), 1U);
    EXPECT_EQ(std::get<0>(foreground.calls[0]), reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x1235)));
}
