// Findings that are thrown, so that a test can go on behind them.
#pragma once

#include "tools/runner/machine/Finding.h"

#include <gtest/gtest.h>

namespace runner {

class ThrowingSink : public FindingSink
{
    void Take(const Finding& finding) override { throw finding; }
};

// What the action is stopped by. Fails for one that is not.
template <class Action>
Finding FindingOf(Action action)
{
    try {
        action();
    } catch (const Finding& finding) {
        return finding;
    }
    ADD_FAILURE() << "nothing was found";
    return {};
}

template <class Action>
void ExpectFinding(FindingKind kind, Action action)
{
    const Finding finding = FindingOf(action);
    EXPECT_EQ(finding.kind, kind) << finding.Line(nullptr);
}

} // namespace runner
