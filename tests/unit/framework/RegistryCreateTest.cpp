// CVireoRegistry::Create: what it asks the platform for.
#include "framework/CVireoRegistry.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TestKey.h"

#include <gtest/gtest.h>

using Creator = LONG WINAPI(HKEY, const wchar_t*, DWORD, wchar_t*, DWORD, REGSAM, SECURITY_ATTRIBUTES*, HKEY*,
                            DWORD*);
static Creator* original;
static std::vector<DWORD> options;
static std::vector<REGSAM> accesses;

static LONG WINAPI RecordCreate(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* keyClass,
                                DWORD option, REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key,
                                DWORD* disposition)
{
    options.push_back(option);
    accesses.push_back(access);
    EXPECT_EQ(root, HKEY_CURRENT_USER);
    return original(root, path, reserved, keyClass, option, access, security, key, disposition);
}

TEST(RegistryCreateTest, ANewKeyOutlivesTheSystemsRestartAndIsAskedForWithFullAccess)
{
    const TestKey testKey;
    const ImportHook hook("RegCreateKeyExW", RecordCreate);
    original = hook.Original<Creator>();
    options.clear();
    accesses.clear();
    CVireoRegistry registry;
    ASSERT_TRUE(registry.Create(HKEY_CURRENT_USER, testKey.Below(L"new").c_str()));
    EXPECT_EQ(options, std::vector<DWORD>{REG_OPTION_NON_VOLATILE});
    EXPECT_EQ(accesses, std::vector<REGSAM>{KEY_ALL_ACCESS});
    EXPECT_TRUE(registry.IsOpen());
    EXPECT_EQ(registry.Root(), HKEY_CURRENT_USER);
}

// A key that exists only once it was made, under a handle of its own for every opening.
static std::vector<UINT_PTR> openHandles;
static bool made;

static LONG GiveHandle(UINT_PTR handle, HKEY* key)
{
    openHandles.push_back(handle);
    *key = reinterpret_cast<HKEY>(handle);
    return ERROR_SUCCESS;
}

static LONG WINAPI OpenIfMade(HKEY, const wchar_t*, DWORD, REGSAM, HKEY* key)
{
    return made ? GiveHandle(0x22, key) : ERROR_FILE_NOT_FOUND;
}

static LONG WINAPI Make(HKEY, const wchar_t*, DWORD, wchar_t*, DWORD, REGSAM, SECURITY_ATTRIBUTES*, HKEY* key,
                        DWORD*)
{
    made = true;
    return GiveHandle(0x11, key);
}

static LONG WINAPI CloseHandleOnce(HKEY key)
{
    EXPECT_EQ(std::erase(openHandles, reinterpret_cast<UINT_PTR>(key)), 1u);
    return ERROR_SUCCESS;
}

TEST(RegistryCreateTest, TheKeyItMadeIsClosedAndOpenedAnew)
{
    const ImportHook open("RegOpenKeyExW", OpenIfMade);
    const ImportHook create("RegCreateKeyExW", Make);
    const ImportHook close("RegCloseKey", CloseHandleOnce);
    openHandles.clear();
    made = false;
    {
        CVireoRegistry registry;
        ASSERT_TRUE(registry.Create(HKEY_CURRENT_USER, L"any"));
        EXPECT_EQ(openHandles, std::vector<UINT_PTR>{0x22});
    }
    EXPECT_TRUE(openHandles.empty());
}

TEST(RegistryCreateTest, ACloseForgetsKeyPathAndRoot)
{
    const TestKey testKey;
    CVireoRegistry registry;
    ASSERT_TRUE(registry.Create(HKEY_CURRENT_USER, testKey.Path()));
    registry.Close();
    EXPECT_FALSE(registry.IsOpen());
    EXPECT_STREQ(L"", registry.Path());
    EXPECT_EQ(registry.Root(), nullptr);
}
