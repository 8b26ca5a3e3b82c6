// Where a test program and the child processes of its death tests leave what they make; removed when the
// program ends.
#pragma once

#include <string>

// A child process ends without running a destructor, so its program removes what it left. Called first and
// last by main.
void BeginScratch();
void EndScratch();

// A folder and a key (below HKEY_CURRENT_USER) that only this program and its children use.
std::wstring ScratchFolder();
std::wstring ScratchKey();

// Unique among the program and its children.
std::wstring ScratchName();
