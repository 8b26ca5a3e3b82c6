// What a second instance hands to the running one, sent by the test itself.
#pragma once

#include <windows.h>

#include <vector>

inline constexpr ULONG_PTR buttonRecord = 1;
inline constexpr size_t buttonRecordSize = 1036;

// A whole record: a button, two actions, and the rest of the bytes.
std::vector<unsigned char> ButtonRecord(int key, int press, int hold, unsigned char filling = 0);

// The program's answer; 99 when it gives none.
LRESULT HandOver(HWND main, ULONG_PTR kind, const std::vector<unsigned char>& bytes);
