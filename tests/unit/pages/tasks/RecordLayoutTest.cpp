// The fields of the records: their order and their sizes.
#include "pages/tasks/STaskInfo.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

TEST(RecordLayoutTest, ATaskIsItsNameWindowIconIndexHeapAndIcon)
{
    EXPECT_EQ(offsetof(STaskInfo, name), 0u);
    EXPECT_EQ(offsetof(STaskInfo, window), sizeof(CStr));
    EXPECT_EQ(offsetof(STaskInfo, iconIndex), sizeof(CStr) + sizeof(HWND));
    EXPECT_GT(offsetof(STaskInfo, heapBytes), offsetof(STaskInfo, iconIndex));
    EXPECT_EQ(offsetof(STaskInfo, icon), offsetof(STaskInfo, heapBytes) + 8);
    EXPECT_TRUE((std::is_same_v<decltype(STaskInfo::iconIndex), int32_t>)) << "signed";
    EXPECT_EQ(sizeof(STaskInfo::heapBytes), 8u);
    const STaskInfo task;
    EXPECT_EQ(task.window, nullptr);
    EXPECT_EQ(task.heapBytes, 0u);
    EXPECT_EQ(task.icon, nullptr);
}

TEST(RecordLayoutTest, AStringIsItsBufferAndItsFixedSize)
{
    CStr text(7);
    text = L"abc";
    struct
    {
        const wchar_t* buffer;
        uint32_t fixedSize;
    } fields = {};
    ASSERT_EQ(sizeof(text), sizeof(fields));
    memcpy(&fields, static_cast<const void*>(&text), sizeof(fields));
    EXPECT_EQ(fields.buffer, text.Buffer());
    EXPECT_EQ(fields.fixedSize, 7u);
}
