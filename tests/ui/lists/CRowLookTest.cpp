// CRowLook: the icons and the two fonts that rows are drawn with.
// profiles: pocketpc pocketpc-vga
#include "lists/CRowLook.h"
#include "tests/support/ObjectCounts.h"
#include "tests/ui/UiTest.h"

class CRowLookTest : public UiTest
{
  protected:
    static LOGFONTW FieldsOf(HGDIOBJ font)
    {
        LOGFONTW fields = {};
        EXPECT_NE(GetObjectW(font, sizeof fields, &fields), 0);
        return fields;
    }

    static void ExpectFont(HFONT font, LONG weight, LONG extraHeight)
    {
        const LOGFONTW system = FieldsOf(GetStockObject(SYSTEM_FONT));
        const LOGFONTW fields = FieldsOf(font);
        EXPECT_EQ(fields.lfWeight, weight);
        EXPECT_EQ(fields.lfHeight, system.lfHeight + extraHeight);
        EXPECT_STREQ(fields.lfFaceName, system.lfFaceName);
    }
};

TEST_F(CRowLookTest, TheFontsAreTheSystemsInTwoWeightsEachWithItsExtraHeight)
{
    CRowLook look;
    look.Create(-3, 2);
    ExpectFont(look.BoldFont(), FW_BOLD, -3);
    ExpectFont(look.NormalFont(), FW_NORMAL, 2);
}

TEST_F(CRowLookTest, TheIconsAreTheShells)
{
    SSystemIcons fetched;
    fetched.Fetch();
    CRowLook look;
    EXPECT_EQ(look.Icons().list, nullptr);
    look.Create(0, 0);
    EXPECT_NE(look.Icons().list, nullptr);
    EXPECT_EQ(look.Icons().list, fetched.list);
    EXPECT_EQ(look.Icons().rootIcon, fetched.rootIcon);
}

TEST_F(CRowLookTest, ItsEndDeletesTheFonts)
{
    const auto life = [] {
        CRowLook look;
        look.Create(0, 0);
        look.Create(1, 1); // replaces them
    };
    life(); // warms up
    const ObjectCounts before = ObjectCounts::Now();
    life();
    EXPECT_TRUE(ObjectCounts::Now().SameObjects(before));
}
