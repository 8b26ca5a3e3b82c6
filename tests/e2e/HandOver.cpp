// What a second instance hands to the running one, sent by the test itself.
#include "tests/e2e/HandOver.h"

#include <cstdint>
#include <cstring>

std::vector<unsigned char> ButtonRecord(int key, int press, int hold, unsigned char filling)
{
    std::vector<unsigned char> bytes(buttonRecordSize, filling);
    const int32_t numbers[] = {key, press, hold};
    memcpy(bytes.data(), numbers, sizeof(numbers));
    return bytes;
}

LRESULT HandOver(HWND main, ULONG_PTR kind, const std::vector<unsigned char>& bytes)
{
    COPYDATASTRUCT data = {kind, static_cast<DWORD>(bytes.size()),
                           bytes.empty() ? nullptr : const_cast<unsigned char*>(bytes.data())};
    DWORD_PTR answer = 99;
    if (!SendMessageTimeoutW(main, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_NORMAL, 10000,
                             &answer)) {
        return 99;
    }
    return static_cast<LRESULT>(answer);
}
