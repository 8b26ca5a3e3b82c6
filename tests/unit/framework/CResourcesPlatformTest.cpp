// CResources with the imaging library of the platform itself.
#include "framework/CResources.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/framework/ContainerBytes.h"

#include <gtest/gtest.h>

class CResourcesPlatformTest : public testing::Test
{
  protected:
    TempFolder folder;
    CResources* resources = nullptr;

    CResourcesPlatformTest()
    {
        EXPECT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, 0)));
        const Bytes bytes =
            ContainerBytes({{1, PngBytes()}, {2, {'n', 'o', ' ', 'i', 'm', 'a', 'g', 'e'}}, {3, {}}});
        resources = CResources::Open(folder.WriteFile(L"pictures.zrs", bytes).c_str());
        EXPECT_NE(resources, nullptr);
    }

    ~CResourcesPlatformTest() override
    {
        CResources::Close(resources);
        CoUninitialize();
    }
};

TEST_F(CResourcesPlatformTest, APngIsAnImageOfItsSize)
{
    ASSERT_NE(resources, nullptr);
    SImage* const image = resources->LoadImage(1);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->width, 3u);
    EXPECT_EQ(image->height, 2u);
    CResources::FreeImage(image);
}

TEST_F(CResourcesPlatformTest, ABitmapShowsTheWindowColourWhereThePngIsTransparent)
{
    ASSERT_NE(resources, nullptr);
    const HBITMAP bitmap = resources->LoadBitmap(1);
    ASSERT_NE(bitmap, nullptr);
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    EXPECT_EQ(GetPixel(memory, 0, 0), RGB(255, 0, 0));
    EXPECT_EQ(GetPixel(memory, 1, 0), RGB(0, 255, 0));
    EXPECT_EQ(GetPixel(memory, 2, 0), RGB(0, 0, 255));
    EXPECT_EQ(GetPixel(memory, 0, 1), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(GetPixel(memory, 1, 1), RGB(10, 20, 30));
    EXPECT_EQ(GetPixel(memory, 2, 1), RGB(0, 0, 0));
    SelectObject(memory, before);
    DeleteDC(memory);
    EXPECT_TRUE(DeleteObject(bitmap));
}

TEST_F(CResourcesPlatformTest, BytesThatAreNoImageAreCode6)
{
    ASSERT_NE(resources, nullptr);
    for (const uint32_t id : {2u, 3u}) {
        EXPECT_EQ(resources->LoadBitmap(id), nullptr);
        EXPECT_EQ(CResources::LastError().code, 6u);
        EXPECT_EQ(CResources::LastError().argument, id);
    }
}
