// The form of a plain function.
#include "tools/runner/calls/Form.h"

#include <gtest/gtest.h>

namespace runner {

TEST(FormTest, LettersSizesAndKindsAreRead)
{
    const Form form("e oK tuu q16");
    ASSERT_TRUE(form.IsGood());
    EXPECT_EQ(form.Result().letter, 'e');
    ASSERT_EQ(form.Parameters(), 5u);
    EXPECT_EQ(form.Parameter(0).letter, 'o');
    EXPECT_EQ(form.Parameter(0).kind, 'K');
    EXPECT_EQ(form.Parameter(1).letter, 't');
    EXPECT_EQ(form.Parameter(3).letter, 'u');
    EXPECT_EQ(form.Parameter(4).letter, 'q');
    EXPECT_EQ(form.Parameter(4).size, 16u);
}

TEST(FormTest, AResultAloneIsAForm)
{
    EXPECT_TRUE(Form("v").IsGood());
    EXPECT_EQ(Form("v").Parameters(), 0u);
}

TEST(FormTest, BadFormsAreRefused)
{
    for (const char* text :
         {"", "u z", "T", "u q", "u o", "u oZ", "u hT", "u hTh", "u b", "t bt", "m", "u uuuuuuuuuuuuuuu"}) {
        EXPECT_FALSE(Form(text).IsGood()) << text;
    }
    EXPECT_TRUE(Form("u uuuuuuuuuuuuuu").IsGood());
}

} // namespace runner
