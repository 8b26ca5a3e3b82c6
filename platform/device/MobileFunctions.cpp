// Functions that Windows Mobile adds to Windows CE. What they report on is then missing too (a battery,
// cards, tiers of trust), so nobody is told that one is not there.
#include "platform/device/MobileFunctions.h"

#include "platform/device/LateFunction.h"

#include "LateExports.h"

enum MobileFunction : size_t
{
    FirstCard,
    NextCard,
    PowerStatus,
    Policy
};

static constinit LateFunction mobileFunctions[] = {
    {late::FindFirstFlashCard, nullptr},
    {late::FindNextFlashCard, nullptr},
    {late::GetSystemPowerStatusEx, nullptr},
    {late::QueryPolicy, nullptr},
};

void LookUpMobileFunctions()
{
    for (LateFunction& function : mobileFunctions) {
        function.LookUp();
    }
}

extern "C" {

HANDLE WINAPI FindFirstFlashCard(WIN32_FIND_DATAW* card)
{
    auto* function = mobileFunctions[FirstCard].As<decltype(FindFirstFlashCard)>();
    return function ? function(card) : INVALID_HANDLE_VALUE;
}

BOOL WINAPI FindNextFlashCard(HANDLE search, WIN32_FIND_DATAW* card)
{
    auto* function = mobileFunctions[NextCard].As<decltype(FindNextFlashCard)>();
    return function ? function(search, card) : FALSE;
}

BOOL WINAPI GetSystemPowerStatusEx(SYSTEM_POWER_STATUS_EX* status, BOOL update)
{
    auto* function = mobileFunctions[PowerStatus].As<decltype(GetSystemPowerStatusEx)>();
    return function ? function(status, update) : FALSE;
}

HRESULT WINAPI QueryPolicy(DWORD policyId, DWORD* value)
{
    auto* function = mobileFunctions[Policy].As<decltype(QueryPolicy)>();
    return function ? function(policyId, value) : E_NOTIMPL;
}
}
