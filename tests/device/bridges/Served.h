// Questions to the platform of which the program knows the answers.
#pragma once

#include "platform/ce.h"

// Counts an answer that is not right.
void Expect(bool right);

// The executable's own path.
struct ServedPath
{
    wchar_t text[MAX_PATH];

    ServedPath();
    // Behind the last backslash.
    const wchar_t* Name() const;
};

void AskFiles();
void AskRegistry();
void AskShell();
void AskImages();
void AskProcesses();
void AskHeap();
void AskDevice();
void AskTexts();
void AskSorting();
