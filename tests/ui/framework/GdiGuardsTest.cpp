// The guards of device contexts and GDI objects: what they take they give back.
#include "framework/Gdi.h"
#include "tests/support/ObjectCounts.h"
#include "tests/ui/UiTest.h"

class GdiGuardsTest : public UiTest
{
  protected:
    // A first time for what the system keeps, then so often that a single thing left each time shows.
    static void ExpectNothingLeft(const std::function<void()>& step)
    {
        step();
        const ObjectCounts before = ObjectCounts::Now();
        for (int i = 0; i < 20; i++) {
            step();
        }
        const ObjectCounts after = ObjectCounts::Now();
        EXPECT_TRUE(after.SameObjects(before))
            << testing::PrintToString(before) << "\nafter: " << testing::PrintToString(after);
    }
};

TEST_F(GdiGuardsTest, DeviceContextsGoWithTheirGuards)
{
    InApp([](TestApp& app) {
        ExpectNothingLeft([] { EXPECT_NE(static_cast<HDC>(ScreenDC()), nullptr); });
        ExpectNothingLeft([&] { EXPECT_NE(static_cast<HDC>(WindowDC(app.MainWindow())), nullptr); });
        ExpectNothingLeft([] { EXPECT_NE(static_cast<HDC>(MemoryDC(nullptr)), nullptr); });
        ExpectNothingLeft([&] {
            const RECT part = {3, 4, 30, 40};
            InvalidateRect(app.MainWindow(), &part, FALSE);
            const PaintDC paint(app.MainWindow());
            EXPECT_NE(static_cast<HDC>(paint), nullptr);
            EXPECT_EQ(paint.Area(), part);
        });
        EXPECT_FALSE(GetUpdateRect(app.MainWindow(), nullptr, FALSE)) << "a painting was not ended";
    });
}

TEST_F(GdiGuardsTest, AnObjectGoesWithItsGuardUnlessItIsReleasedOrReplaced)
{
    ExpectNothingLeft([] { const GdiObject<HBRUSH> brush(CreateSolidBrush(RGB(1, 2, 3))); });
    ExpectNothingLeft([] {
        GdiObject<HBRUSH> brush;
        EXPECT_EQ(static_cast<HBRUSH>(brush), nullptr);
        brush.Reset(CreateSolidBrush(RGB(1, 2, 3)));
        brush.Reset(CreateSolidBrush(RGB(4, 5, 6)));
    });
    HBRUSH released = nullptr;
    {
        GdiObject<HBRUSH> brush(CreateSolidBrush(RGB(1, 2, 3)));
        released = brush.Release();
        EXPECT_EQ(static_cast<HBRUSH>(brush), nullptr);
    }
    EXPECT_TRUE(DeleteObject(released)) << "it was the caller's";
}

TEST_F(GdiGuardsTest, TheObjectSelectedBeforeComesBack)
{
    const MemoryDC memory(nullptr);
    const GdiObject<HBRUSH> brush(CreateSolidBrush(RGB(1, 2, 3)));
    HGDIOBJ const before = GetCurrentObject(memory, OBJ_BRUSH);
    {
        const Selection selection(memory, brush);
        EXPECT_TRUE(selection.Done());
        EXPECT_EQ(GetCurrentObject(memory, OBJ_BRUSH), static_cast<HBRUSH>(brush));
    }
    EXPECT_EQ(GetCurrentObject(memory, OBJ_BRUSH), before);
    const Selection none(memory, nullptr);
    EXPECT_FALSE(none.Done());
}
