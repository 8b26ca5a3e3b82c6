// CVireoRegistry::Create: what it asks the platform for.
#include "framework/CVireoRegistry.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TestKey.h"

#include <gtest/gtest.h>

using Creator = LONG WINAPI(HKEY, const wchar_t*, DWORD, wchar_t*, DWORD, REGSAM, SECURITY_ATTRIBUTES*, HKEY*,
                            DWORD*);
static Creator* original;
static std::vector<DWORD> options;

static LONG WINAPI RecordCreate(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* keyClass,
                                DWORD option, REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key,
                                DWORD* disposition)
{
    options.push_back(option);
    EXPECT_EQ(root, HKEY_CURRENT_USER);
    return original(root, path, reserved, keyClass, option, access, security, key, disposition);
}

TEST(RegistryCreateTest, ANewKeyOutlivesTheSystemsRestart)
{
    const TestKey testKey;
    const ImportHook hook("RegCreateKeyExW", RecordCreate);
    original = hook.Original<Creator>();
    options.clear();
    CVireoRegistry registry;
    ASSERT_TRUE(registry.Create(HKEY_CURRENT_USER, testKey.Below(L"new").c_str()));
    EXPECT_EQ(options, std::vector<DWORD>{REG_OPTION_NON_VOLATILE});
    EXPECT_TRUE(registry.IsOpen());
    EXPECT_EQ(registry.Root(), HKEY_CURRENT_USER);
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
