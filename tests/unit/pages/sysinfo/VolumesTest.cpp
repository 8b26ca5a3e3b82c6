// CVolumes: the internal storage and the cards, one after the other.
#include "pages/sysinfo/CVolumes.h"
#include "tests/support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

using Seen = std::tuple<std::wstring, uint64_t, uint64_t>; // name, total, free
using Calls = std::vector<std::wstring>;

static std::vector<Seen> Walk()
{
    std::vector<Seen> seen;
    for (CVolumes volumes; volumes.Next();) {
        EXPECT_EQ(volumes.IsCard(), !seen.empty()) << "only the first is the internal storage";
        seen.emplace_back(volumes.Name().Buffer(), volumes.Total(), volumes.Free());
    }
    return seen;
}

class VolumesTest : public testing::Test
{
  protected:
    ScriptedDevice device;

    VolumesTest() { device.volumes[L"\\"] = {1000, 400}; }

    // The volumes that are seen while one of these names is between two good cards.
    static std::vector<Seen> Around(const Seen& middle)
    {
        return {{L"", 1000, 400}, {L"A", 10, 1}, middle, {L"B", 20, 2}};
    }
    static std::vector<Seen> WithoutMiddle() { return {{L"", 1000, 400}, {L"A", 10, 1}, {L"B", 20, 2}}; }
};

TEST_F(VolumesTest, TheInternalStorageIsFirstAndCardsFollowInTheirOrder)
{
    device.AddCard(L"Zip", 30, 3);
    device.AddCard(L"Storage Card", 10, 1);
    device.AddCard(L"CF", 20, 2);
    EXPECT_EQ(Walk(), (std::vector<Seen>{
                          {L"", 1000, 400}, {L"Zip", 30, 3}, {L"Storage Card", 10, 1}, {L"CF", 20, 2}}));
}

TEST_F(VolumesTest, EverySearchIsClosedOnceAndNothingElseIsAsked)
{
    device.AddCard(L"SD", 10, 1);
    device.AddCard(L"CF", 20, 2);
    Walk();
    EXPECT_EQ(device.calls,
              (Calls{L"size \\", L"first card", L"look for \\SD", L"close", L"size \\SD", L"next card",
                     L"look for \\CF", L"close", L"size \\CF", L"next card", L"close"}));
}

TEST_F(VolumesTest, WithoutCardsTheSearchHasNothingToClose)
{
    EXPECT_EQ(Walk(), (std::vector<Seen>{{L"", 1000, 400}}));
    EXPECT_EQ(device.calls, (Calls{L"size \\", L"first card"}));
}

TEST_F(VolumesTest, BehindTheLastVolumeThereIsNone)
{
    CVolumes none;
    EXPECT_TRUE(none.Next());
    for (int i = 0; i < 3; i++) {
        EXPECT_FALSE(none.Next());
    }
    EXPECT_EQ(device.calls, (Calls{L"size \\", L"first card"})) << "a failed search is not begun again";
}

TEST_F(VolumesTest, AWalkThatIsLeftEarlyClosesItsSearch)
{
    device.AddCards(3);
    {
        CVolumes volumes;
        volumes.Next();
        EXPECT_TRUE(volumes.Next());
        device.calls.clear();
    }
    EXPECT_EQ(device.calls, (Calls{L"close"}));
    device.calls.clear();
    {
        const CVolumes untouched;
    }
    EXPECT_EQ(device.calls, Calls{});
}

TEST_F(VolumesTest, CardsWithoutANameArePassedOver)
{
    device.AddCard(L"A", 10, 1);
    device.cards.emplace_back();
    device.AddCard(L"B", 20, 2);
    EXPECT_EQ(Walk(), WithoutMiddle());
    for (const std::wstring& call : device.calls) {
        EXPECT_NE(call, L"look for \\") << "the root is no card";
    }
}

TEST_F(VolumesTest, CardsThatAreGoneArePassedOver)
{
    device.AddCard(L"A", 10, 1);
    device.AddCard(L"Gone", 99, 9);
    device.AddCard(L"B", 20, 2);
    device.volumes[L"\\Gone"].exists = false;
    EXPECT_EQ(Walk(), WithoutMiddle());
    EXPECT_EQ(std::count(device.calls.begin(), device.calls.end(), L"size \\Gone"), 0);
    EXPECT_EQ(std::count(device.calls.begin(), device.calls.end(), L"close of no search"), 0);
    EXPECT_EQ(std::count(device.calls.begin(), device.calls.end(), L"close"), 3);
}

TEST_F(VolumesTest, OnlyCardsThatAreGoneAreNoCards)
{
    device.AddCards(3);
    for (int i = 0; i < 3; i++) {
        device.volumes[L"\\Card " + std::to_wstring(i)].exists = false;
    }
    EXPECT_EQ(Walk(), (std::vector<Seen>{{L"", 1000, 400}}));
}

TEST_F(VolumesTest, AFailedQueryShowsTheVolumeBeforeItOnceMore)
{
    device.AddCard(L"A", 10, 1);
    device.AddCard(L"Mute", 99, 9);
    device.AddCard(L"B", 20, 2);
    device.volumes[L"\\Mute"].answers = false;
    EXPECT_EQ(Walk(), Around({L"Mute", 10, 1}));
    device.volumes[L"\\A"].answers = false;
    EXPECT_EQ(Walk(),
              (std::vector<Seen>{{L"", 1000, 400}, {L"A", 1000, 400}, {L"Mute", 1000, 400}, {L"B", 20, 2}}));
}

TEST_F(VolumesTest, AFailedFirstQueryShowsZerosInEveryWalk)
{
    device.AddCard(L"A", 10, 1);
    Walk();
    device.volumes[L"\\"].answers = false;
    for (int i = 0; i < 2; i++) {
        EXPECT_EQ(Walk(), (std::vector<Seen>{{L"", 0, 0}, {L"A", 10, 1}})) << "nothing of the walk before";
    }
}

TEST_F(VolumesTest, SizesHaveSixtyFourBits)
{
    device.volumes[L"\\"] = {0xFFFFFFFFFFFFFFFF, 0x8000000000000001};
    device.AddCard(L"A", 0x100000000, 0xFFFFFFFF);
    EXPECT_EQ(Walk(), (std::vector<Seen>{{L"", 0xFFFFFFFFFFFFFFFF, 0x8000000000000001},
                                         {L"A", 0x100000000, 0xFFFFFFFF}}));
}

TEST_F(VolumesTest, ANameOfTheWholeRecordEndsWithIt)
{
    const std::wstring name(260, L'n');
    device.AddCard(name, 10, 1);
    device.AddCard(L"B", 20, 2);
    EXPECT_EQ(Walk(), (std::vector<Seen>{{L"", 1000, 400}, {name, 10, 1}, {L"B", 20, 2}}));
}

TEST_F(VolumesTest, NamesThatLookLikeFormatsAndPathsAreNames)
{
    for (const wchar_t* name : {L"100%s%n", L"Карта памяти", L" ", L"a.b"}) {
        device.AddCard(name, 10, 1);
        EXPECT_EQ(Walk().back(), (Seen{name, 10, 1}));
    }
}
