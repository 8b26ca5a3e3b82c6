// What a picture says about its size.
#include "platform/ce.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

class PlatformImageTest : public testing::Test
{
  protected:
    static constexpr int width = 10;
    static constexpr int height = 30;
    static constexpr double dotsPerMetre[] = {7874, 3937}; // 200 and 100 an inch

    IImage* image = nullptr;

    PlatformImageTest()
    {
        EXPECT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, 0)));
        IImagingFactory* factory = nullptr;
        EXPECT_TRUE(SUCCEEDED(CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                               IID_IImagingFactory, reinterpret_cast<void**>(&factory))));
        EXPECT_TRUE(SUCCEEDED(
            factory->CreateImageFromBuffer(Bitmap(), sizeof(file), BufferDisposalFlagNone, &image)));
        factory->Release();
    }

    ~PlatformImageTest() override
    {
        if (image != nullptr) {
            image->Release();
        }
        CoUninitialize();
    }

  private:
    // A bitmap file of 32-bit pixels.
    unsigned char file[14 + sizeof(BITMAPINFOHEADER) + width * height * 4] = {};

    const void* Bitmap()
    {
        const uint32_t sizes[] = {sizeof file, 0, 14 + sizeof(BITMAPINFOHEADER)};
        BITMAPINFOHEADER header = {};
        header.biSize = sizeof header;
        header.biWidth = width;
        header.biHeight = height;
        header.biPlanes = 1;
        header.biBitCount = 32;
        header.biXPelsPerMeter = static_cast<LONG>(dotsPerMetre[0]);
        header.biYPelsPerMeter = static_cast<LONG>(dotsPerMetre[1]);
        file[0] = 'B';
        file[1] = 'M';
        memcpy(file + 2, sizes, sizeof sizes);
        memcpy(file + 14, &header, sizeof header);
        return file;
    }
};

TEST_F(PlatformImageTest, ItsInformationIsThatOfTheFile)
{
    ASSERT_NE(image, nullptr);
    ImageInfo info;
    memset(&info, 0xCC, sizeof info);
    ASSERT_TRUE(SUCCEEDED(image->GetImageInfo(&info)));
    EXPECT_EQ(info.Width, static_cast<UINT>(width));
    EXPECT_EQ(info.Height, static_cast<UINT>(height));
    EXPECT_EQ(info.TileWidth, info.Width);
    EXPECT_EQ(info.TileHeight, info.Height);
    EXPECT_NEAR(info.Xdpi, 200, 0.1);
    EXPECT_NEAR(info.Ydpi, 100, 0.1);
    EXPECT_EQ(info.Flags, 0u);
}

TEST_F(PlatformImageTest, ItsPhysicalSizeIsInHundredthsOfAMillimetre)
{
    ASSERT_NE(image, nullptr);
    SIZE size = {};
    ASSERT_TRUE(SUCCEEDED(image->GetPhysicalDimension(&size)));
    EXPECT_EQ(size.cx, 127); // 10 of 200 dots an inch
    EXPECT_EQ(size.cy, 762); // 30 of 100
}
