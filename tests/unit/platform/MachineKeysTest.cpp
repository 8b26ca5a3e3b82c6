// The machine's registry keys that everybody may write on a device.
#include "platform/pc/common/MachineKeys.h"

#include "tests/support/ImportHook.h"
#include "tests/unit/platform/OwnMachine.h"

#include <gtest/gtest.h>

#include <memory>

static constexpr wchar_t buttons[] = L"Software\\Microsoft\\Shell\\Keys";
static constexpr wchar_t one[] = L"Software\\Microsoft\\Shell\\Keys\\40C1";
static constexpr wchar_t standIn[] =
    L"Software\\Quorvane Handheld\\Machine\\Software\\Microsoft\\Shell\\Keys\\40C1";

static ImportHook* creating;
static ImportHook* opening;

static LONG WINAPI RefuseToCreate(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className,
                                  DWORD options, REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key,
                                  DWORD* disposition)
{
    return root == HKEY_LOCAL_MACHINE
               ? ERROR_ACCESS_DENIED
               : creating->Original<decltype(RegCreateKeyExW)>()(root, path, reserved, className, options,
                                                                 access, security, key, disposition);
}

static LONG WINAPI RefuseToOpen(HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* key)
{
    return root == HKEY_LOCAL_MACHINE
               ? ERROR_ACCESS_DENIED
               : opening->Original<decltype(RegOpenKeyExW)>()(root, path, options, access, key);
}

class MachineKeysTest : public testing::Test
{
  protected:
    const OwnMachine machine;
    std::unique_ptr<ImportHook> createHook;
    std::unique_ptr<ImportHook> openHook;

    // From now on the user is a plain one.
    void Refuse()
    {
        createHook = std::make_unique<ImportHook>("RegCreateKeyExW", RefuseToCreate);
        openHook = std::make_unique<ImportHook>("RegOpenKeyExW", RefuseToOpen);
        creating = createHook.get();
        opening = openHook.get();
    }
    void Allow()
    {
        createHook.reset();
        openHook.reset();
    }

    static LONG Create(const wchar_t* path)
    {
        HKEY key = nullptr;
        const LONG result = handheld::CreateMachineKey(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_SET_VALUE,
                                                       nullptr, &key, nullptr);
        return result == ERROR_SUCCESS ? RegCloseKey(key) : result;
    }
    static LONG Open(const wchar_t* path, REGSAM access = KEY_QUERY_VALUE)
    {
        HKEY key = nullptr;
        const LONG result = handheld::OpenMachineKey(HKEY_LOCAL_MACHINE, path, 0, access, &key);
        return result == ERROR_SUCCESS ? RegCloseKey(key) : result;
    }
    static bool IsThere(HKEY root, const wchar_t* path)
    {
        HKEY key = nullptr;
        // Past the substitute.
        return RegOpenKeyW(root, path, &key) == ERROR_SUCCESS && RegCloseKey(key) == ERROR_SUCCESS;
    }
};

TEST_F(MachineKeysTest, WhoMayWriteTheMachineDoes)
{
    EXPECT_EQ(Open(one), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Create(one), ERROR_SUCCESS);
    EXPECT_EQ(Open(one), ERROR_SUCCESS);
    EXPECT_TRUE(IsThere(HKEY_LOCAL_MACHINE, one));
    EXPECT_FALSE(IsThere(HKEY_CURRENT_USER, standIn));
}

TEST_F(MachineKeysTest, WhoMayNotHasAStandIn)
{
    Refuse();
    EXPECT_EQ(Create(one), ERROR_SUCCESS);
    EXPECT_EQ(Open(one), ERROR_SUCCESS);
    EXPECT_TRUE(IsThere(HKEY_CURRENT_USER, standIn));
    EXPECT_EQ(Open(L"Software\\Microsoft\\Shell\\Keys\\40C2"), ERROR_FILE_NOT_FOUND);
}

TEST_F(MachineKeysTest, AStandInIsReadEvenWhereTheMachineMayBeRead)
{
    Refuse();
    ASSERT_EQ(Create(one), ERROR_SUCCESS);
    Allow();
    EXPECT_EQ(Open(one), ERROR_SUCCESS);
    EXPECT_EQ(Open(buttons), ERROR_SUCCESS);
    ASSERT_EQ(Create(L"SOFTWARE\\microsoft\\Shell\\KEYS\\40C2"), ERROR_SUCCESS);
    EXPECT_FALSE(IsThere(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Shell\\Keys\\40C2"));
}

TEST_F(MachineKeysTest, OtherKeysHaveNone)
{
    Refuse();
    ASSERT_EQ(Create(one), ERROR_SUCCESS);
    for (const wchar_t* path : {L"Software\\Microsoft\\Shell", L"Software\\Microsoft\\Shell\\KeysToo",
                                L"Software\\Microsoft\\Shell\\Key"}) {
        EXPECT_EQ(Create(path), ERROR_ACCESS_DENIED);
        EXPECT_EQ(Open(path), ERROR_ACCESS_DENIED);
    }
}
