// The description of a soft-key bar in a program's resources.
#include "platform/pc/common/MenuBarResource.h"

#include <gtest/gtest.h>

#include <vector>

using handheld::MenuBarResource;
using handheld::ReadMenuBarResource;

static const std::vector<uint16_t> twoKeys = {134,    2,      0xFFFE, 112, 4,    0x10, 3, 0,
                                              0xFFFF, 0xFFFE, 113,    0,   0x18, 4,    0, 0};

static bool Read(const std::vector<uint16_t>& words, MenuBarResource& bar)
{
    return ReadMenuBarResource(words.data(), words.size() * sizeof(uint16_t), bar);
}

TEST(MenuBarResourceTest, ABarHasItsMenuAndItsKeys)
{
    MenuBarResource bar;
    ASSERT_TRUE(Read(twoKeys, bar));
    EXPECT_EQ(bar.menuId, 134);
    ASSERT_EQ(bar.buttons.size(), 2u);
    EXPECT_EQ(bar.buttons[0].command, 112);
    EXPECT_EQ(bar.buttons[0].textId, 3);
    EXPECT_EQ(bar.buttons[0].state, 4);
    EXPECT_EQ(bar.buttons[0].subMenu, handheld::SoftKeyButton::noMenu);
    EXPECT_EQ(bar.buttons[1].command, 113);
    EXPECT_EQ(bar.buttons[1].textId, 4);
    EXPECT_EQ(bar.buttons[1].state, 0);
    EXPECT_EQ(bar.buttons[1].subMenu, 0);
}

TEST(MenuBarResourceTest, ABlockThatIsTooShortIsRefused)
{
    for (size_t words = 0; words < twoKeys.size(); ++words) {
        MenuBarResource bar;
        EXPECT_FALSE(Read({twoKeys.begin(), twoKeys.begin() + static_cast<ptrdiff_t>(words)}, bar)) << words;
    }
}

TEST(MenuBarResourceTest, ABarMayHaveNoKeys)
{
    MenuBarResource bar;
    ASSERT_TRUE(Read({7, 0}, bar));
    EXPECT_EQ(bar.menuId, 7);
    EXPECT_TRUE(bar.buttons.empty());
}
