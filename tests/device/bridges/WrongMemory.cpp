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

void ReadIntoAShortBlock()
{
    const HANDLE file = CreateFileW(OwnPath(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD delivered = 0;
    BYTE* block = Hidden(new BYTE[8]);
    ReadFile(file, block, 9, &delivered, nullptr);
}

void PatternWithoutEnd()
{
    WIN32_FIND_DATAW found = {};
    wchar_t* pattern = Hidden(new wchar_t[2]);
    pattern[0] = L'\\';
    pattern[1] = L'*';
    FindFirstFileW(pattern, &found);
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
