// Where a test program and its children leave what they make.
#include "tests/support/Scratch.h"

#include <windows.h>

static const wchar_t variable[] = L"QUORVANE_TEST_PROGRAM"; // the program's process id, for its children
static const wchar_t keyOfAll[] = L"Software\\QuorvaneTest";
static bool isChild;

static std::wstring ProgramId()
{
    wchar_t id[20] = L"";
    GetEnvironmentVariableW(variable, id, 20);
    return id;
}

static void RemoveTree(const std::wstring& folder)
{
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoStandard, &data,
                                           FindExSearchNameMatch, nullptr, 0);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = data.cFileName;
            const std::wstring path = folder + L"\\" + name;
            if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) {
                SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
                DeleteFileW(path.c_str());
            } else if (name != L"." && name != L"..") {
                RemoveTree(path);
            }
        } while (FindNextFileW(search, &data));
        FindClose(search);
    }
    RemoveDirectoryW(folder.c_str());
}

static void Remove()
{
    RemoveTree(ScratchFolder());
    RegDeleteTreeW(HKEY_CURRENT_USER, ScratchKey().c_str());
    // Fails, as it should, while another test program has its key there.
    RegDeleteKeyW(HKEY_CURRENT_USER, keyOfAll);
}

void BeginScratch()
{
    isChild = !ProgramId().empty();
    if (isChild) {
        return;
    }
    SetEnvironmentVariableW(variable, std::to_wstring(GetCurrentProcessId()).c_str());
    Remove(); // of a program with the same process id that crashed
    CreateDirectoryW(ScratchFolder().c_str(), nullptr);
}

void EndScratch()
{
    if (!isChild) {
        Remove();
    }
}

std::wstring ScratchFolder()
{
    wchar_t temporary[MAX_PATH];
    GetTempPathW(MAX_PATH, temporary);
    return std::wstring(temporary) + L"QuorvaneTest-" + ProgramId();
}

std::wstring ScratchKey()
{
    return std::wstring(keyOfAll) + L"\\" + ProgramId();
}

std::wstring ScratchName()
{
    static unsigned count = 0;
    // A later child may have the process id of an earlier one.
    return std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(GetTickCount()) + L"-" +
           std::to_wstring(++count);
}
