// Values that other programs write: what is not of the expected kind is as good as missing.
#include "framework/CVireoRegistry.h"
#include "tests/support/TestKey.h"

#include <gtest/gtest.h>

class RegistryReadIfTest : public testing::Test
{
  protected:
    TestKey testKey;
    CVireoRegistry registry;

    void SetUp() override { ASSERT_TRUE(registry.Open(HKEY_CURRENT_USER, testKey.Path())); }
};

TEST_F(RegistryReadIfTest, ANumberIsRead)
{
    const DWORD number = 0x12345678;
    testKey.Write(L"number", REG_DWORD, &number, 4);
    uint32_t value = 1;
    EXPECT_TRUE(registry.ReadIfUint(L"number", &value));
    EXPECT_EQ(value, 0x12345678u);
}

TEST_F(RegistryReadIfTest, AnythingElseIsNoNumberAndLeavesTheOutput)
{
    const BYTE bytes[16] = {9, 9, 9, 9, 9};
    const std::pair<DWORD, DWORD> kinds[] = {{REG_DWORD, 0}, {REG_DWORD, 3},  {REG_DWORD, 5},
                                             {REG_DWORD, 8}, {REG_BINARY, 4}, {REG_SZ, 4},
                                             {REG_NONE, 4},  {REG_QWORD, 8},  {REG_DWORD_BIG_ENDIAN, 4}};
    for (const auto& [type, size] : kinds) {
        testKey.Write(L"value", type, bytes, size);
        uint32_t value = 1;
        EXPECT_FALSE(registry.ReadIfUint(L"value", &value)) << type << " " << size;
        EXPECT_EQ(value, 1u) << type << " " << size;
    }
    uint32_t value = 1;
    EXPECT_FALSE(registry.ReadIfUint(L"missing", &value));
    EXPECT_EQ(value, 1u);
}

TEST_F(RegistryReadIfTest, ATextIsRead)
{
    testKey.Write(L"text", REG_SZ, L"abc", 8);
    CStr text(L"before");
    EXPECT_TRUE(registry.ReadIfString(L"text", text));
    EXPECT_STREQ(text.Buffer(), L"abc");
}

TEST_F(RegistryReadIfTest, AnythingElseIsNoTextAndLeavesTheOutput)
{
    for (const DWORD type : {REG_NONE, REG_EXPAND_SZ, REG_BINARY, REG_DWORD, REG_MULTI_SZ, 99}) {
        testKey.Write(L"value", type, L"a", 4);
        CStr text(L"before");
        EXPECT_FALSE(registry.ReadIfString(L"value", text)) << type;
        EXPECT_STREQ(text.Buffer(), L"before") << type;
    }
    CStr text(L"before");
    EXPECT_FALSE(registry.ReadIfString(L"missing", text));
    EXPECT_STREQ(text.Buffer(), L"before");
}
