// Asks the platform what it knows the answers of. It ends with the number of the wrong ones; a number on its
// command line comes on top, and then a block is left behind.
#include "tests/device/bridges/Served.h"

static int wrongAnswers = 0;

void Expect(bool right)
{
    if (!right) {
        wrongAnswers++;
    }
}

ServedPath::ServedPath() : text()
{
    const DWORD length = GetModuleFileNameW(nullptr, text, MAX_PATH);
    Expect(length > 0 && length == wcslen(text));
}

const wchar_t* ServedPath::Name() const
{
    const wchar_t* name = text;
    for (const wchar_t* p = text; *p != 0; p++) {
        name = *p == L'\\' ? p + 1 : name;
    }
    return name;
}

[[gnu::noinline]] static void LeaveABlock()
{
    LocalAlloc(LPTR, 24);
}

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t* commandLine, int)
{
    AskFiles();
    AskRegistry();
    AskShell();
    AskImages();
    AskProcesses();
    AskHeap();
    AskDevice();
    AskTexts();
    AskSorting();
    const int further = *commandLine ? static_cast<int>(_wtol(commandLine)) : 0;
    if (further != 0) {
        LeaveABlock();
    }
    return wrongAnswers + further;
}
