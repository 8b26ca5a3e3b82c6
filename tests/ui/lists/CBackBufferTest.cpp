// CBackBuffer: its size, its end, and what is there without memory.
#include "lists/CBackBuffer.h"
#include "tests/support/ObjectCounts.h"
#include "tests/ui/UiTest.h"

class CBackBufferTest : public UiTest
{
  protected:
    HWND window = GetDesktopWindow();

    static SIZE SizeOf(const CBackBuffer& buffer)
    {
        BITMAP fields = {};
        GetObjectW(buffer.Bitmap(), sizeof fields, &fields);
        return {fields.bmWidth, fields.bmHeight};
    }

    static void ExpectWhole(const CBackBuffer& buffer, int width, int height)
    {
        ASSERT_NE(buffer.DC(), nullptr);
        EXPECT_EQ(GetCurrentObject(buffer.DC(), OBJ_BITMAP), buffer.Bitmap());
        EXPECT_EQ(SizeOf(buffer).cx, width);
        EXPECT_EQ(SizeOf(buffer).cy, height);
    }
};

TEST_F(CBackBufferTest, ThereIsNoneBeforeTheFirstSize)
{
    const CBackBuffer buffer;
    EXPECT_EQ(buffer.DC(), nullptr);
    EXPECT_EQ(buffer.Bitmap(), nullptr);
}

TEST_F(CBackBufferTest, ItsEndGivesEverythingBack)
{
    const auto life = [this] {
        CBackBuffer buffer;
        for (const int size : {30, 40, 40, 20}) {
            buffer.Resize(window, size, 10);
            ExpectWhole(buffer, size, 10);
        }
    };
    life(); // warms up
    const ObjectCounts before = ObjectCounts::Now();
    life();
    EXPECT_TRUE(ObjectCounts::Now().SameObjects(before));
}

TEST_F(CBackBufferTest, AWindowWithoutAnAreaDoesNotEndIt)
{
    CBackBuffer buffer;
    buffer.Resize(window, 30, 10);
    buffer.Resize(window, 0, 0);
    EXPECT_EQ(buffer.Width(), 0);
    EXPECT_EQ(buffer.Height(), 0);
    buffer.Resize(window, 30, 10);
    ExpectWhole(buffer, 30, 10);
}

TEST_F(CBackBufferTest, WithoutAContextThereIsNoneAndNoBitmapIsLeft)
{
    CBackBuffer buffer;
    buffer.Resize(window, 30, 10);
    const ObjectCounts before = ObjectCounts::Now();
    {
        const SPY(CreateCompatibleDC) create([](HDC) { return HDC{nullptr}; });
        for (const int size : {31, 31, 32}) {
            buffer.Resize(window, size, 10);
            EXPECT_EQ(buffer.DC(), nullptr);
            EXPECT_EQ(buffer.Bitmap(), nullptr);
        }
        EXPECT_EQ(create.calls.size(), 3U) << "each time it is tried anew";
    }
    buffer.Resize(window, 32, 10);
    ExpectWhole(buffer, 32, 10);
    EXPECT_TRUE(ObjectCounts::Now().SameObjects(before));
}

TEST_F(CBackBufferTest, WithoutABitmapThereIsNoneEither)
{
    CBackBuffer buffer;
    buffer.Resize(window, 30, 10);
    const ObjectCounts before = ObjectCounts::Now();
    {
        const SPY(CreateCompatibleBitmap) create([](HDC, int, int) { return HBITMAP{nullptr}; });
        buffer.Resize(window, 31, 10);
        EXPECT_EQ(buffer.DC(), nullptr);
        EXPECT_EQ(buffer.Bitmap(), nullptr);
    }
    buffer.Resize(window, 31, 10);
    ExpectWhole(buffer, 31, 10);
    EXPECT_TRUE(ObjectCounts::Now().SameObjects(before));
}
