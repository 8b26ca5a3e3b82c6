// Memory that a call must not read or write, or that nobody has written.
#include "tests/device/bridges/Hidden.h"
#include "tests/device/bridges/Misuse.h"
#include "tests/device/bridges/SmallPicture.h"

static wchar_t ownPath[MAX_PATH];

static const wchar_t* OwnPath()
{
    GetModuleFileNameW(nullptr, ownPath, MAX_PATH);
    return ownPath;
}

static HANDLE OpenOwn()
{
    return CreateFileW(OwnPath(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

void ReadIntoAShortBlock()
{
    DWORD delivered = 0;
    BYTE* block = Hidden(new BYTE[8]);
    ReadFile(OpenOwn(), block, 9, &delivered, nullptr);
}

void ByteBehindTheFile()
{
    const HANDLE file = OpenOwn();
    DWORD delivered = 0;
    BYTE* block = Hidden(new BYTE[2]);
    SetFilePointer(file, -1, nullptr, FILE_END);
    ReadFile(file, block, 2, &delivered, nullptr);
    if (block[1] == 5) {
        Sleep(1);
    }
}

void PatternWithoutEnd()
{
    WIN32_FIND_DATAW found = {};
    wchar_t* pattern = Hidden(new wchar_t[2]);
    pattern[0] = L'\\';
    pattern[1] = L'*';
    FindFirstFileW(pattern, &found);
}

// The name that is found would fit in.
void ShortFindData()
{
    FindFirstFileW(OwnPath(), reinterpret_cast<WIN32_FIND_DATAW*>(Hidden(new BYTE[100])));
}

void NameBehindItsEnd()
{
    auto* found = Hidden(new WIN32_FIND_DATAW);
    FindFirstFileW(OwnPath(), found);
    if (found->cFileName[wcslen(found->cFileName) + 1] == L'x') {
        Sleep(1);
    }
}

void SizeThatNobodySet()
{
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_ALL_ACCESS, &key);
    DWORD* room = Hidden(new DWORD[2]);
    RegQueryValueExW(key, L"", nullptr, nullptr, reinterpret_cast<BYTE*>(room), room + 1);
}

void FigureOfAFailedCall()
{
    auto* figures = Hidden(new ULARGE_INTEGER[3]);
    GetDiskFreeSpaceExW(L"\\no such folder", figures, figures + 1, figures + 2);
    if (figures[1].LowPart == 0) {
        Sleep(1);
    }
}

void CopyOntoItself()
{
    auto* block = static_cast<BYTE*>(LocalAlloc(LPTR, 16));
    memcpy(Hidden(block + 1), Hidden(block), Hidden(8));
}

void ImageOfNoBlock()
{
    ImageOf(const_cast<SmallPictureFile*>(&smallPicture), sizeof smallPicture);
}

// The three words behind the header are missing: no menu, the standard class, no title.
void DialogWithoutEnd()
{
    auto* form = static_cast<DLGTEMPLATE*>(LocalAlloc(LPTR, sizeof(DLGTEMPLATE)));
    CreateDialogIndirectParamW(GetModuleHandleW(nullptr), form, nullptr, nullptr, 0);
}

void DialogWithoutItsControl()
{
    auto* words = static_cast<WORD*>(LocalAlloc(LPTR, sizeof(DLGTEMPLATE) + 6));
    reinterpret_cast<DLGTEMPLATE*>(words)->cdit = 1;
    CreateDialogIndirectParamW(GetModuleHandleW(nullptr), reinterpret_cast<const DLGTEMPLATE*>(words),
                               nullptr, nullptr, 0);
}

void ValueThatDidNotFit()
{
    HKEY key = nullptr;
    const DWORD number = 5;
    RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_ALL_ACCESS, &key);
    RegSetValueExW(key, L"QuorvaneMisuse", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4);
    DWORD size = 2;
    WORD* room = Hidden(new WORD[1]);
    RegQueryValueExW(key, L"QuorvaneMisuse", nullptr, nullptr, reinterpret_cast<BYTE*>(room), &size);
    if (*room == 5) {
        Sleep(1);
    }
}

void LowerCaseWithoutEnd()
{
    wchar_t* text = Hidden(new wchar_t[1]);
    *text = L'A';
    _wcslwr(text);
}

static int Compare(const void* /*first*/, const void* /*second*/)
{
    return 0;
}

void SortOfTooMany()
{
    qsort(LocalAlloc(LPTR, 16), 5, 4, Compare);
}

void SizeOfNoImages()
{
    int* size = Hidden(new int[2]);
    ImageList_GetIconSize(nullptr, size, size + 1);
    if (size[1] == 5) {
        Sleep(1);
    }
}

void ProcessOfAFailedStart()
{
    auto* start = Hidden(new SHELLEXECUTEINFOW);
    memset(start, 0, offsetof(SHELLEXECUTEINFOW, hProcess));
    start->cbSize = sizeof *start;
    start->fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
    start->lpFile = L"\\no such file";
    ShellExecuteEx(start);
    if (start->hProcess) {
        Sleep(1);
    }
}
