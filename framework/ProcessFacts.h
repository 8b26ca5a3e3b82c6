// What the program asks about a process: its executable and the memory of its heaps.
#pragma once

#include "framework/CStr.h"

// Full path of the process's executable, at most 259 characters; empty when it cannot be told.
void ProcessImagePath(DWORD processId, CStr& path);
// The file name behind the last backslash of a path; the whole path when it has none.
const wchar_t* FileNameOf(const wchar_t* path);
// Bytes in all blocks of all heaps of the process, modulo 2^32; 0 when its heaps cannot be walked.
uint32_t ProcessHeapBytes(DWORD processId);
