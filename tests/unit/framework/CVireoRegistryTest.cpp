// CVireoRegistry: keys, values and their types.
#include "framework/CVireoRegistry.h"
#include "tests/support/Fatal.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TestKey.h"

class CVireoRegistryTest : public testing::Test
{
  protected:
    TestKey testKey;
    CVireoRegistry registry;

    void Open() { ASSERT_TRUE(registry.Open(HKEY_CURRENT_USER, testKey.Path())); }
};

TEST_F(CVireoRegistryTest, OpenRemembersTheKeyOnSuccessOnly)
{
    EXPECT_FALSE(registry.IsOpen());
    Open();
    EXPECT_TRUE(registry.IsOpen());
    EXPECT_STREQ(testKey.Path(), registry.Path());
    EXPECT_EQ(registry.Root(), HKEY_CURRENT_USER);
    EXPECT_FALSE(registry.Open(HKEY_CURRENT_USER, testKey.Below(L"missing").c_str()));
    EXPECT_FALSE(registry.IsOpen());
    EXPECT_STREQ(L"", registry.Path());
    EXPECT_EQ(registry.Root(), nullptr);
}

TEST_F(CVireoRegistryTest, OpenTakesItsOwnPath)
{
    Open();
    EXPECT_TRUE(registry.Open(HKEY_CURRENT_USER, registry.Path()));
    EXPECT_STREQ(testKey.Path(), registry.Path());
}

static REGSAM askedAccess;
static int openKeys;

static LONG WINAPI RecordOpen(HKEY, const wchar_t*, DWORD, REGSAM access, HKEY* key)
{
    askedAccess = access;
    openKeys++;
    *key = reinterpret_cast<HKEY>(static_cast<INT_PTR>(0x77));
    return ERROR_SUCCESS;
}

static LONG WINAPI RecordClose(HKEY)
{
    openKeys--;
    return ERROR_SUCCESS;
}

TEST_F(CVireoRegistryTest, EveryOpenedKeyIsClosed)
{
    const ImportHook open("RegOpenKeyExW", RecordOpen);
    const ImportHook close("RegCloseKey", RecordClose);
    openKeys = 0;
    {
        CVireoRegistry scoped;
        EXPECT_TRUE(scoped.Open(HKEY_CURRENT_USER, L"any"));
        EXPECT_EQ(askedAccess, static_cast<REGSAM>(KEY_ALL_ACCESS));
        EXPECT_TRUE(scoped.Open(HKEY_CURRENT_USER, L"other"));
        EXPECT_EQ(openKeys, 1);
        scoped.Close();
        EXPECT_EQ(openKeys, 0);
        scoped.Close();
        EXPECT_EQ(openKeys, 0);
        EXPECT_TRUE(scoped.Open(HKEY_CURRENT_USER, L"any"));
    }
    EXPECT_EQ(openKeys, 0);
}

TEST_F(CVireoRegistryTest, CreateMakesAMissingKeyAndKeepsAnExistingOne)
{
    const std::wstring path = testKey.Below(L"new\\deeper");
    ASSERT_TRUE(registry.Create(HKEY_CURRENT_USER, path.c_str()));
    EXPECT_STREQ(path.c_str(), registry.Path());
    registry.WriteUint(L"value", 7);
    registry.Close();
    ASSERT_TRUE(registry.Create(HKEY_CURRENT_USER, path.c_str()));
    uint32_t value = 0;
    EXPECT_TRUE(registry.ReadUint(L"value", &value));
    EXPECT_EQ(value, 7u);
}

TEST_F(CVireoRegistryTest, CreateFailsWhereNoKeyCanBe)
{
    EXPECT_FALSE(registry.Create(HKEY_CURRENT_USER, std::wstring(300, L'x').c_str()));
    EXPECT_FALSE(registry.IsOpen());
}

TEST_F(CVireoRegistryTest, NumbersAreWrittenAndRead)
{
    Open();
    registry.WriteUint(L"number", 0xFFFFFFFE);
    uint32_t value = 0;
    EXPECT_TRUE(registry.ReadUint(L"number", &value));
    EXPECT_EQ(value, 0xFFFFFFFEu);
    EXPECT_EQ(registry.GetValueType(L"number"), static_cast<uint32_t>(REG_DWORD));
}

TEST_F(CVireoRegistryTest, AMissingNumberLeavesTheValue)
{
    Open();
    uint32_t value = 1234;
    EXPECT_FALSE(registry.ReadUint(L"missing", &value));
    EXPECT_EQ(value, 1234u);
}

TEST_F(CVireoRegistryTest, ReadUintChecksTheSizeAndNotTheType)
{
    testKey.Write(L"text", REG_SZ, L"7", 4);
    const BYTE bytes[8] = {1};
    testKey.Write(L"short", REG_DWORD, bytes, 2);
    testKey.Write(L"long", REG_BINARY, bytes, 8);
    Open();
    uint32_t value = 0;
    EXPECT_TRUE(registry.ReadUint(L"text", &value));
    EXPECT_EQ(value, 55u);
    EXPECT_FATAL(registry.ReadUint(L"short", &value), L"CVireoRegistry::ReadUint", L"Invalid value");
    EXPECT_FATAL(registry.ReadUint(L"long", &value), L"CVireoRegistry::ReadUint", L"Invalid value");
}

TEST_F(CVireoRegistryTest, TextsAreWrittenAndRead)
{
    Open();
    const std::wstring large(5000, L'x');
    registry.WriteString(L"text", L"\x043F\x00E9 abc");
    registry.WriteString(L"empty", L"");
    registry.WriteString(L"large", large.c_str());
    CStr text(3);
    EXPECT_TRUE(registry.ReadString(L"text", text));
    EXPECT_STREQ(L"\x043F\x00E9 abc", text);
    EXPECT_EQ(text.FixedSize(), 0u);
    EXPECT_TRUE(registry.ReadString(L"empty", text));
    EXPECT_STREQ(L"", text);
    EXPECT_TRUE(registry.ReadString(L"large", text));
    EXPECT_STREQ(large.c_str(), text);
}

TEST_F(CVireoRegistryTest, AWrittenTextHasItsTerminator)
{
    Open();
    registry.WriteString(L"text", L"abc");
    BYTE data[20];
    DWORD size = sizeof(data);
    DWORD type = 0;
    ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, testKey.Path(), L"text", RRF_RT_ANY, &type, data, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(size, 8u);
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
}

TEST_F(CVireoRegistryTest, AMissingTextLeavesTheString)
{
    Open();
    CStr text(10);
    text = L"before";
    EXPECT_FALSE(registry.ReadString(L"missing", text));
    EXPECT_STREQ(L"before", text);
    EXPECT_EQ(text.FixedSize(), 10u);
}

// Its size can still be asked for, its text cannot.
static LONG WINAPI AnswerForTheSizeOnly(HKEY, const wchar_t*, DWORD*, DWORD* type, BYTE* data, DWORD* size)
{
    if (data) {
        return ERROR_FILE_NOT_FOUND;
    }
    *type = REG_SZ;
    *size = 8;
    return ERROR_SUCCESS;
}

TEST_F(CVireoRegistryTest, ATextThatGoesWhileItIsReadLeavesTheString)
{
    Open();
    const ImportHook hook("RegQueryValueExW", AnswerForTheSizeOnly);
    CStr text(10);
    text = L"before";
    EXPECT_FALSE(registry.ReadString(L"any", text));
    EXPECT_STREQ(L"before", text);
    EXPECT_EQ(text.FixedSize(), 10u);
}

TEST_F(CVireoRegistryTest, ATextOfAnotherTypeIsFatal)
{
    const DWORD number = 7;
    testKey.Write(L"number", REG_DWORD, &number, sizeof(number));
    testKey.Write(L"expand", REG_EXPAND_SZ, L"a", 4);
    Open();
    CStr text;
    EXPECT_FATAL(registry.ReadString(L"number", text), L"CVireoRegistry::ReadString", L"Invalid value");
    EXPECT_FATAL(registry.ReadString(L"expand", text), L"CVireoRegistry::ReadString", L"Invalid value");
}

TEST_F(CVireoRegistryTest, ATextWithoutATerminatorIsReadWhole)
{
    testKey.Write(L"open", REG_SZ, L"abc", 6);
    testKey.Write(L"odd", REG_SZ, "a\0b", 3);
    testKey.Write(L"none", REG_SZ, "", 0);
    Open();
    CStr text;
    EXPECT_TRUE(registry.ReadString(L"open", text));
    EXPECT_STREQ(L"abc", text);
    EXPECT_TRUE(registry.ReadString(L"odd", text));
    EXPECT_STREQ(L"ab", text);
    EXPECT_TRUE(registry.ReadString(L"none", text));
    EXPECT_STREQ(L"", text);
}

TEST_F(CVireoRegistryTest, AClosedKeyCannotBeRead)
{
    uint32_t value = 0;
    CStr text;
    EXPECT_FATAL(registry.ReadUint(L"any", &value), L"CVireoRegistry::ReadUint", L"Not in use");
    EXPECT_FATAL(registry.ReadString(L"any", text), L"CVireoRegistry::ReadString", L"Not in use");
}

static LONG WINAPI RefuseWriting(HKEY, const wchar_t*, DWORD, DWORD, const BYTE*, DWORD)
{
    return ERROR_ACCESS_DENIED;
}

TEST_F(CVireoRegistryTest, AFailingWriteIsFatal)
{
    Open();
    const ImportHook hook("RegSetValueExW", RefuseWriting);
    EXPECT_FATAL(registry.WriteUint(L"any", 1), L"CVireoRegistry::WriteUint", L"Error");
    EXPECT_FATAL(registry.WriteString(L"any", L"x"), L"CVireoRegistry::WriteString", L"Error");
}

TEST_F(CVireoRegistryTest, TheTypeTellsWhetherAValueExists)
{
    testKey.Write(L"binary", REG_BINARY, "abc", 3);
    Open();
    registry.WriteString(L"text", L"");
    EXPECT_TRUE(registry.IsValueExists(L"binary"));
    EXPECT_TRUE(registry.IsValueExists(L"text"));
    EXPECT_FALSE(registry.IsValueExists(L"missing"));
    EXPECT_EQ(registry.GetValueType(L"binary"), static_cast<uint32_t>(REG_BINARY));
    EXPECT_EQ(registry.GetValueType(L"text"), static_cast<uint32_t>(REG_SZ));
    EXPECT_EQ(registry.GetValueType(L"missing"), 0u);
    registry.Close();
    EXPECT_FALSE(registry.IsValueExists(L"text"));
    EXPECT_EQ(registry.GetValueType(L"text"), 0u);
}

TEST_F(CVireoRegistryTest, SubKeysAreListedInIndexOrder)
{
    const std::wstring longName(200, L'n');
    for (const wchar_t* name : {L"40C1", L"40C2", L"x", longName.c_str()}) {
        testKey.MakeSubKey(name);
    }
    Open();
    CStrList names;
    names.Append(L"left from before");
    registry.EnumSubKeys(names);
    ASSERT_EQ(names.Count(), 4u);
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, testKey.Path(), 0, KEY_READ, &key), ERROR_SUCCESS);
    for (DWORD i = 0; i < 4; i++) {
        wchar_t name[256];
        DWORD size = 256;
        ASSERT_EQ(RegEnumKeyExW(key, i, name, &size, nullptr, nullptr, nullptr, nullptr), ERROR_SUCCESS);
        EXPECT_STREQ(name, names.At(i));
    }
    RegCloseKey(key);
}

TEST_F(CVireoRegistryTest, WithoutSubKeysTheListIsEmpty)
{
    Open();
    CStrList names;
    names.Append(L"left from before");
    registry.EnumSubKeys(names);
    EXPECT_EQ(names.Count(), 0u);
    registry.Close();
    names.Append(L"left from before");
    registry.EnumSubKeys(names);
    EXPECT_EQ(names.Count(), 0u);
}

static LONG WINAPI SkipSecond(HKEY, DWORD index, wchar_t* name, DWORD* size, DWORD*, wchar_t*, DWORD*,
                              FILETIME*)
{
    if (index == 1) {
        return ERROR_MORE_DATA;
    }
    name[0] = static_cast<wchar_t>(L'a' + index);
    name[1] = 0;
    *size = 1;
    return ERROR_SUCCESS;
}

TEST_F(CVireoRegistryTest, ANameThatFailsIsSkipped)
{
    for (const wchar_t* name : {L"a", L"b", L"c"}) {
        testKey.MakeSubKey(name);
    }
    Open();
    const ImportHook hook("RegEnumKeyExW", SkipSecond);
    CStrList names;
    registry.EnumSubKeys(names);
    ASSERT_EQ(names.Count(), 2u);
    EXPECT_STREQ(L"a", names.At(0));
    EXPECT_STREQ(L"c", names.At(1));
}
