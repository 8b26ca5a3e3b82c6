// Expects a statement to end in the fatal box: it runs in a child process, whose exit code and box are
// checked.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

// Matches the standard error output of a process whose only box was the fatal one with this function, line
// and reason.
class FatalReport
{
  private:
    std::string head;
    std::string tail;
    int line; // 0: any

  public:
    using is_gtest_matcher = void;
    FatalReport(const wchar_t* function, int expectedLine, const wchar_t* reason);

    bool MatchAndExplain(const std::string& output, std::ostream* listener) const;
    void DescribeTo(std::ostream* out) const;
    void DescribeNegationTo(std::ostream* out) const;
};

#define EXPECT_FATAL(statement, function, reason) EXPECT_FATAL_AT(statement, function, 0, reason)

#define EXPECT_FATAL_AT(statement, function, line, reason)                                                   \
    EXPECT_EXIT(statement, testing::ExitedWithCode(-1), FatalReport(function, line, reason))
