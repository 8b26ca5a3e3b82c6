// A screen of unequal resolutions.
#include "tests/ui/UnequalScreen.h"

#include <cstdio>
#include <cstdlib>

UnequalScreen::UnequalScreen()
{
    caps.instead = [this](HDC screen, int index) {
        return index == LOGPIXELSX ? across : index == LOGPIXELSY ? down : caps.Real(screen, index);
    };
}

void UnequalScreen::EndWithResult()
{
    const testing::TestResult& result = *testing::UnitTest::GetInstance()->current_test_info()->result();
    for (int i = 0; i < result.total_part_count(); i++) {
        const testing::TestPartResult& part = result.GetTestPartResult(i);
        fprintf(stderr, "line %d: %s\n", part.line_number(), part.summary());
    }
    fflush(stderr);
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}
