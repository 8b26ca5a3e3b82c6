// The functions that Windows Mobile adds to Windows CE. The build gives them other names here than the PC's:
// Device and the name (DeviceParts.cmake).
#include "platform/device/MobileFunctions.h"
#include "tests/unit/platform/device/DeviceLibraries.h"

extern "C" {
HANDLE WINAPI DeviceFindFirstFlashCard(WIN32_FIND_DATAW* card);
BOOL WINAPI DeviceFindNextFlashCard(HANDLE search, WIN32_FIND_DATAW* card);
BOOL WINAPI DeviceGetSystemPowerStatusEx(SYSTEM_POWER_STATUS_EX* status, BOOL update);
HRESULT WINAPI DeviceQueryPolicy(DWORD policyId, DWORD* value);
}

using Events = std::vector<std::string>;

static constexpr const char* firstCard = "note_prj.dll 7";
static constexpr const char* nextCard = "note_prj.dll 8";
static constexpr const char* powerStatus = "coredll.dll GetSystemPowerStatusEx";
static constexpr const char* policyQuery = "aygshell.dll 364";

static const HANDLE search = reinterpret_cast<HANDLE>(0x5EA);

static HANDLE WINAPI FirstCardStandIn(WIN32_FIND_DATAW* card)
{
    DeviceLibraries::current->Note("first card");
    card->nFileSizeLow = 1;
    return search;
}

static BOOL WINAPI NextCardStandIn(HANDLE itsSearch, WIN32_FIND_DATAW* card)
{
    DeviceLibraries::current->Note(itsSearch == search ? "next card" : "next card of another search");
    card->nFileSizeLow = 2;
    return 5;
}

static BOOL WINAPI PowerStatusStandIn(SYSTEM_POWER_STATUS_EX* status, BOOL update)
{
    DeviceLibraries::current->Note("power " + std::to_string(update));
    status->BackupBatteryLifePercent = 71;
    return 6;
}

static HRESULT WINAPI PolicyQueryStandIn(DWORD policyId, DWORD* value)
{
    DeviceLibraries::current->Note("policy " + std::to_string(policyId));
    *value = 1;
    return S_FALSE;
}

class MobileFunctionsTest : public DeviceLibraries
{
  protected:
    WIN32_FIND_DATAW card = {};
    SYSTEM_POWER_STATUS_EX power = {};
    DWORD policy = 9;

    // What an earlier test of the process found is forgotten.
    MobileFunctionsTest() { LookUpMobileFunctions(); }

    // Without the one that is missing.
    void PutAllBut(const std::string& missing)
    {
        Put(firstCard, FirstCardStandIn);
        Put(nextCard, NextCardStandIn);
        Put(powerStatus, PowerStatusStandIn);
        Put(policyQuery, PolicyQueryStandIn);
        functions.erase(missing);
    }

    Events LookUp()
    {
        events.clear();
        LookUpMobileFunctions();
        return std::exchange(events, Events());
    }
};

TEST_F(MobileFunctionsTest, EachIsLookedUpInItsLibraryAndNobodyIsToldThatItIsMissing)
{
    EXPECT_EQ(LookUp(), (Events{firstCard, nextCard, powerStatus, policyQuery}));
}

TEST_F(MobileFunctionsTest, TheFirstCardIsWhatTheLibraryGives)
{
    Put(firstCard, FirstCardStandIn);
    LookUp();
    EXPECT_EQ(DeviceFindFirstFlashCard(&card), search);
    EXPECT_EQ(card.nFileSizeLow, 1u);
    EXPECT_EQ(events, Events{"first card"});
}

TEST_F(MobileFunctionsTest, TheNextCardIsWhatTheLibraryGives)
{
    Put(nextCard, NextCardStandIn);
    LookUp();
    EXPECT_EQ(DeviceFindNextFlashCard(search, &card), 5);
    EXPECT_EQ(card.nFileSizeLow, 2u);
    EXPECT_EQ(events, Events{"next card"});
}

TEST_F(MobileFunctionsTest, ThePowerStatusIsWhatTheLibraryGives)
{
    Put(powerStatus, PowerStatusStandIn);
    LookUp();
    EXPECT_EQ(DeviceGetSystemPowerStatusEx(&power, TRUE), 6);
    EXPECT_EQ(power.BackupBatteryLifePercent, 71);
    DeviceGetSystemPowerStatusEx(&power, FALSE);
    EXPECT_EQ(events, (Events{"power 1", "power 0"}));
}

TEST_F(MobileFunctionsTest, ThePolicyIsWhatTheLibraryGives)
{
    Put(policyQuery, PolicyQueryStandIn);
    LookUp();
    EXPECT_EQ(DeviceQueryPolicy(4123, &policy), S_FALSE);
    EXPECT_EQ(policy, 1u);
    EXPECT_EQ(events, Events{"policy 4123"});
}

TEST_F(MobileFunctionsTest, WithoutTheFirstCardsFunctionThereIsNoCard)
{
    PutAllBut(firstCard);
    LookUp();
    EXPECT_EQ(DeviceFindFirstFlashCard(&card), INVALID_HANDLE_VALUE);
    EXPECT_EQ(card.nFileSizeLow, 0u);
    EXPECT_EQ(events, Events());
}

TEST_F(MobileFunctionsTest, WithoutTheNextCardsFunctionThereIsNoFurtherCard)
{
    PutAllBut(nextCard);
    LookUp();
    EXPECT_EQ(DeviceFindNextFlashCard(search, &card), FALSE);
    EXPECT_EQ(card.nFileSizeLow, 0u);
    EXPECT_EQ(events, Events());
}

TEST_F(MobileFunctionsTest, WithoutItsFunctionThePowerStatusFails)
{
    PutAllBut(powerStatus);
    LookUp();
    EXPECT_EQ(DeviceGetSystemPowerStatusEx(&power, TRUE), FALSE);
    EXPECT_EQ(power.BackupBatteryLifePercent, 0);
    EXPECT_EQ(events, Events());
}

TEST_F(MobileFunctionsTest, WithoutItsFunctionThePolicyQueryFailsAndLeavesTheValueAlone)
{
    PutAllBut(policyQuery);
    LookUp();
    EXPECT_TRUE(FAILED(DeviceQueryPolicy(4123, &policy)));
    EXPECT_EQ(policy, 9u);
    EXPECT_EQ(events, Events());
}

TEST_F(MobileFunctionsTest, WithoutTheCardsLibraryThereAreNoCardsAndTheOthersWork)
{
    PutAllBut("");
    missingLibraries = {"note_prj.dll"};
    EXPECT_EQ(LookUp(), (Events{"no note_prj.dll", "no note_prj.dll", powerStatus, policyQuery}));
    EXPECT_EQ(DeviceFindFirstFlashCard(&card), INVALID_HANDLE_VALUE);
    EXPECT_EQ(DeviceFindNextFlashCard(search, &card), FALSE);
    EXPECT_EQ(DeviceGetSystemPowerStatusEx(&power, FALSE), 6);
    EXPECT_EQ(DeviceQueryPolicy(4123, &policy), S_FALSE);
    EXPECT_EQ(events, (Events{"power 0", "policy 4123"}));
}
