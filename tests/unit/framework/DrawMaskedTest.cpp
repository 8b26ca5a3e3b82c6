// CResources::DrawMasked: a picture through its mask.
#include "framework/CResources.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <vector>

// A 32-bit bitmap in a context of its own.
class Canvas
{
  private:
    HDC context = CreateCompatibleDC(nullptr);
    HBITMAP bitmap;
    HGDIOBJ before;

  public:
    Canvas(int width, int height)
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        before = SelectObject(context, bitmap);
    }

    ~Canvas()
    {
        Deselect();
        DeleteObject(bitmap);
        DeleteDC(context);
    }

    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    operator HDC() const { return context; }
    HBITMAP Bitmap() const { return bitmap; }
    void Deselect() { SelectObject(context, before); } // so that it can be selected elsewhere
};

static const COLORREF background = RGB(11, 22, 33);
static const COLORREF pictureColour = RGB(200, 100, 50);

class DrawMaskedTest : public testing::Test
{
  protected:
    Canvas target{6, 4};
    Canvas image{2, 2};
    Canvas mask{2, 2};
    Canvas own{1, 1}; // the context that is lent, with a bitmap in it

    DrawMaskedTest()
    {
        for (int y = 0; y < 4; y++) {
            for (int x = 0; x < 6; x++) {
                SetPixel(target, x, y, background);
            }
        }
        // Opaque at (0,0) and (1,1), where the mask is black.
        for (int y = 0; y < 2; y++) {
            for (int x = 0; x < 2; x++) {
                SetPixel(image, x, y, pictureColour);
                SetPixel(mask, x, y, x == y ? RGB(0, 0, 0) : RGB(255, 255, 255));
            }
        }
        image.Deselect();
        mask.Deselect();
    }
};

TEST_F(DrawMaskedTest, TheTargetShowsThroughWhereTheMaskIsWhite)
{
    CResources::DrawMasked(target, 3, 1, 2, 2, own, image.Bitmap(), mask.Bitmap());
    for (int y = 0; y < 4; y++) {
        for (int x = 0; x < 6; x++) {
            const bool opaque = (x == 3 && y == 1) || (x == 4 && y == 2);
            EXPECT_EQ(GetPixel(target, x, y), opaque ? pictureColour : background) << x << ' ' << y;
        }
    }
}

TEST_F(DrawMaskedTest, TheLentContextHasItsBitmapAgain)
{
    CResources::DrawMasked(target, 0, 0, 2, 2, own, image.Bitmap(), mask.Bitmap());
    EXPECT_EQ(GetCurrentObject(own, OBJ_BITMAP), own.Bitmap());
}

struct Step
{
    HGDIOBJ selected;
    DWORD operation;
    bool operator==(const Step&) const = default;
};
static std::vector<Step> steps;

static BOOL WINAPI RecordStep(HDC, int, int, int, int, HDC source, int, int, DWORD operation)
{
    steps.push_back({GetCurrentObject(source, OBJ_BITMAP), operation});
    return TRUE;
}

TEST_F(DrawMaskedTest, DrawsInThreeSteps)
{
    const ImportHook hook("BitBlt", RecordStep);
    steps.clear();
    CResources::DrawMasked(target, 0, 0, 2, 2, own, image.Bitmap(), mask.Bitmap());
    ASSERT_EQ(steps.size(), 3u);
    EXPECT_TRUE((steps[0] == Step{image.Bitmap(), SRCINVERT}));
    EXPECT_TRUE((steps[1] == Step{mask.Bitmap(), SRCAND}));
    EXPECT_TRUE((steps[2] == Step{image.Bitmap(), SRCINVERT}));
}

TEST_F(DrawMaskedTest, WithoutPictureOrMaskNothingIsDrawn)
{
    Canvas elsewhere{2, 2}; // its bitmap cannot be selected into a second context
    const struct
    {
        HBITMAP image;
        HBITMAP mask;
    } missing[] = {{nullptr, mask.Bitmap()},
                   {image.Bitmap(), nullptr},
                   {nullptr, nullptr},
                   {elsewhere.Bitmap(), mask.Bitmap()},
                   {image.Bitmap(), elsewhere.Bitmap()}};
    const ImportHook hook("BitBlt", RecordStep);
    for (const auto& each : missing) {
        steps.clear();
        CResources::DrawMasked(target, 0, 0, 2, 2, own, each.image, each.mask);
        EXPECT_TRUE(steps.empty());
        EXPECT_EQ(GetCurrentObject(own, OBJ_BITMAP), own.Bitmap());
        SelectObject(own, own.Bitmap());
    }
}
