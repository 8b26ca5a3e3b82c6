// A function that not every device's library exports.
#include "tests/unit/platform/device/DeviceLibraries.h"

static constexpr LateExport byName = {L"tools.dll", L"Sharpen", 0};
static constexpr LateExport byNumber = {L"tools.dll", nullptr, 84};
static constexpr const wchar_t* loss = L"Nothing is sharpened.";

using Events = std::vector<std::string>;

static int Answer()
{
    return 42;
}

class LateFunctionTest : public DeviceLibraries
{};

TEST_F(LateFunctionTest, IsFoundByItsName)
{
    Put("tools.dll Sharpen", Answer);
    LateFunction function(byName, loss);
    function.LookUp();
    EXPECT_EQ(events, Events{"tools.dll Sharpen"});
    ASSERT_TRUE(function.As<int()>());
    EXPECT_EQ(function.As<int()>()(), 42);
}

TEST_F(LateFunctionTest, IsFoundByItsNumber)
{
    Put("tools.dll 84", Answer);
    LateFunction function(byNumber, loss);
    function.LookUp();
    EXPECT_EQ(events, Events{"tools.dll 84"});
    EXPECT_EQ(function.As<int()>(), Answer);
}

TEST_F(LateFunctionTest, AMissingLibraryIsTold)
{
    missingLibraries = {"tools.dll"};
    LateFunction function(byName, loss);
    function.LookUp();
    EXPECT_EQ(events, (Events{"no tools.dll", "box: Nothing is sharpened."}));
    EXPECT_FALSE(function.As<int()>());
}

TEST_F(LateFunctionTest, AMissingFunctionIsToldOnceAndLookedUpOnce)
{
    LateFunction function(byNumber, loss);
    function.LookUp();
    const Events once = {"tools.dll 84", "box: Nothing is sharpened."};
    EXPECT_EQ(events, once);
    for (int call = 0; call < 3; call++) {
        EXPECT_FALSE(function.As<int()>());
    }
    EXPECT_EQ(events, once);
}

TEST_F(LateFunctionTest, AFoundFunctionIsLookedUpOnce)
{
    Put("tools.dll 84", Answer);
    LateFunction function(byNumber, loss);
    function.LookUp();
    for (int call = 0; call < 3; call++) {
        EXPECT_EQ(function.As<int()>(), Answer);
    }
    EXPECT_EQ(events, Events{"tools.dll 84"});
}

TEST_F(LateFunctionTest, ADeviceIsAskedWhetherItMissesOnlyAMissingOne)
{
    static int asked;
    asked = 0;
    Put("tools.dll 84", Answer);
    const auto isMissed = [] {
        asked++;
        return true;
    };
    LateFunction(byNumber, loss, isMissed).LookUp();
    EXPECT_EQ(asked, 0);
    LateFunction(byName, loss, isMissed).LookUp();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(events, (Events{"tools.dll 84", "tools.dll Sharpen", "box: Nothing is sharpened."}));
}

TEST_F(LateFunctionTest, WhatADeviceDoesNotMissIsNotTold)
{
    LateFunction function(byName, loss, [] { return false; });
    function.LookUp();
    EXPECT_EQ(events, Events{"tools.dll Sharpen"});
    EXPECT_FALSE(function.As<int()>());
}

TEST_F(LateFunctionTest, WithoutALossNothingIsTold)
{
    LateFunction function(byName, nullptr);
    function.LookUp();
    EXPECT_EQ(events, Events{"tools.dll Sharpen"});
    EXPECT_FALSE(function.As<int()>());
}

TEST_F(LateFunctionTest, NothingIsThereBeforeTheLookUp)
{
    Put("tools.dll Sharpen", Answer);
    const LateFunction function(byName, loss);
    EXPECT_FALSE(function.As<int()>());
    EXPECT_EQ(events, Events());
}
