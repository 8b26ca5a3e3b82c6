// The record that the search for cards fills: its size, its zeros, and that it is given back.
#include "pages/sysinfo/CVolumes.h"
#include "tests/support/ScriptedDevice.h"

#include <gtest/gtest.h>

static int blocks;
static int requests;
static UINT requestFlags;
static SIZE_T requestSize;
static bool refuse;

// Filled with rubbish unless zeros are asked for.
static void* WINAPI Alloc(UINT flags, SIZE_T size)
{
    requests++;
    requestFlags = flags;
    requestSize = size;
    if (refuse) {
        return nullptr;
    }
    void* const block = HeapAlloc(GetProcessHeap(), 0, size);
    memset(block, flags & LMEM_ZEROINIT ? 0 : 0x55, size);
    blocks++;
    return block;
}

static void* WINAPI Free(void* block)
{
    EXPECT_NE(block, nullptr);
    blocks--;
    HeapFree(GetProcessHeap(), 0, block);
    return nullptr;
}

class CardRecordTest : public testing::Test
{
  protected:
    ScriptedDevice device;
    const ImportHook alloc{"LocalAlloc", Alloc};
    const ImportHook free{"LocalFree", Free};

    CardRecordTest()
    {
        blocks = requests = 0;
        refuse = false;
    }

    static int Walk()
    {
        int count = 0;
        for (CVolumes volumes; volumes.Next();) {
            count++;
        }
        return count;
    }
};

TEST_F(CardRecordTest, OneRecordOfZerosServesTheWholeSearch)
{
    device.AddCards(5);
    EXPECT_EQ(Walk(), 6);
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(requestFlags, 0x40u);
    EXPECT_EQ(requestSize, sizeof(WIN32_FIND_DATAW));
    EXPECT_TRUE(device.clearRecord);
    EXPECT_EQ(blocks, 0) << "given back";
}

TEST_F(CardRecordTest, ASearchThatFindsNothingGivesItBackToo)
{
    EXPECT_EQ(Walk(), 1);
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(blocks, 0);
}

TEST_F(CardRecordTest, AWalkThatIsLeftEarlyGivesItBackToo)
{
    device.AddCards(2);
    {
        CVolumes volumes;
        volumes.Next();
        volumes.Next();
        EXPECT_EQ(blocks, 1);
    }
    EXPECT_EQ(blocks, 0);
}

TEST_F(CardRecordTest, WithoutMemoryForItThereAreNoCards)
{
    device.AddCards(2);
    refuse = true;
    EXPECT_EQ(Walk(), 1);
    EXPECT_EQ(device.calls, (std::vector<std::wstring>{L"size \\"}));
    EXPECT_EQ(blocks, 0);
}
