// The folder of the Start menu, as the ceshell substitute tells it.
#include "platform/ce.h"
#include "tests/support/BusyBlocks.h"
#include "tests/support/OwnProfile.h"

#include <gtest/gtest.h>

class StartMenuFolderTest : public testing::Test
{
  protected:
    static void SetUpTestSuite()
    {
        UseOwnProfile("[handheld]\n"
                      "start-menu = \\Windows\\Start Menu\n");
    }

    void SetUp() override
    {
        if (!IsOnlySuite()) {
            GTEST_SKIP() << "another suite may have read the profile already; run this one alone";
        }
        ASSERT_EQ(SHGetMalloc(&allocator), S_OK);
        ASSERT_NE(allocator, nullptr);
    }

    IMalloc* allocator = nullptr;
};

TEST_F(StartMenuFolderTest, ItIsTheFolderThatTheProfileNames)
{
    wchar_t path[MAX_PATH] = {};
    ITEMIDLIST* item = nullptr;
    ASSERT_EQ(SHGetSpecialFolderLocation(nullptr, CSIDL_STARTMENU, &item), S_OK);
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(SHGetPathFromIDList(item, path));
    EXPECT_STREQ(path, L"\\Windows\\Start Menu");
    allocator->Free(item);
    allocator->Release();
}

TEST_F(StartMenuFolderTest, AFreedItemLeavesNothing)
{
    constexpr int rounds = 100;
    const auto makeAndFree = [this] {
        ITEMIDLIST* item = nullptr;
        EXPECT_EQ(SHGetSpecialFolderLocation(nullptr, CSIDL_STARTMENU, &item), S_OK);
        allocator->Free(item);
    };
    makeAndFree();
    const int before = BusyBlocks();
    for (int i = 0; i < rounds; i++) {
        makeAndFree();
    }
    EXPECT_LT(BusyBlocks(), before + rounds / 2);
}

TEST_F(StartMenuFolderTest, AFolderThatThereIsNotIsNoFolder)
{
    ITEMIDLIST item = {};
    ITEMIDLIST* found = &item;
    EXPECT_TRUE(FAILED(SHGetSpecialFolderLocation(nullptr, 0x7FFF, &found)));
    EXPECT_EQ(found, nullptr);
}

TEST_F(StartMenuFolderTest, WithoutAPlaceForTheAnswerThereIsNone)
{
    wchar_t path[MAX_PATH] = L"?";
    EXPECT_EQ(SHGetMalloc(nullptr), E_INVALIDARG);
    EXPECT_EQ(SHGetSpecialFolderLocation(nullptr, CSIDL_STARTMENU, nullptr), E_INVALIDARG);
    EXPECT_FALSE(SHGetPathFromIDList(nullptr, path));
    EXPECT_STREQ(path, L"?");
}

TEST_F(StartMenuFolderTest, TheAllocatorKeepsWhatABlockHolds)
{
    auto* block = static_cast<unsigned char*>(allocator->Alloc(4));
    ASSERT_NE(block, nullptr);
    block[3] = 77;
    EXPECT_EQ(allocator->GetSize(block), 4u);
    EXPECT_EQ(allocator->DidAlloc(block), 1);
    block = static_cast<unsigned char*>(allocator->Realloc(block, 4000));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(block[3], 77);
    EXPECT_EQ(allocator->Realloc(block, 0), nullptr);
    allocator->Free(nullptr);
}
