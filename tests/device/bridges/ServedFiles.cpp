// Files, the registry, the shell's folders, and pictures.
#include "tests/device/bridges/Served.h"
#include "tests/device/bridges/SmallPicture.h"

static constexpr const wchar_t* keyPath = L"Software\\QuorvaneServedProgram";

static void AskSearch(const ServedPath& path, DWORD size)
{
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(path.text, &found);
    Expect(search != INVALID_HANDLE_VALUE);
    Expect(_wcsicmp(found.cFileName, path.Name()) == 0);
    Expect(found.nFileSizeHigh == 0 && found.nFileSizeLow == size);
    Expect((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0);
    Expect(!FindNextFileW(search, &found) && GetLastError() == ERROR_NO_MORE_FILES);
    Expect(FindClose(search));
    Expect(FindFirstFileW(L"\\no such file", &found) == INVALID_HANDLE_VALUE);
}

void AskFiles()
{
    const ServedPath path;
    const HANDLE file = CreateFileW(path.text, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    Expect(file != INVALID_HANDLE_VALUE);
    DWORD high = 1;
    const DWORD size = GetFileSize(file, &high);
    Expect(size > 1000 && high == 0);
    BYTE bytes[2] = {};
    DWORD delivered = 0;
    Expect(ReadFile(file, bytes, 2, &delivered, nullptr) && delivered == 2);
    Expect(bytes[0] == 'M' && bytes[1] == 'Z');
    Expect(SetFilePointer(file, static_cast<LONG>(size) - 1, nullptr, FILE_BEGIN) == size - 1);
    Expect(ReadFile(file, bytes, 2, &delivered, nullptr) && delivered == 1);
    Expect(CloseHandle(file));
    AskSearch(path, size);

    ULARGE_INTEGER figures[3];
    Expect(GetDiskFreeSpaceExW(L"\\", figures, figures + 1, figures + 2));
    Expect(figures[1].QuadPart > 0 && figures[2].QuadPart <= figures[1].QuadPart);
}

static void AskValues(HKEY key)
{
    const DWORD written = 0x89ABCDEF;
    DWORD type = 0;
    DWORD value = 0;
    DWORD size = sizeof value;
    auto* bytes = reinterpret_cast<BYTE*>(&value);
    Expect(RegSetValueExW(key, L"number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&written), 4) == 0);
    Expect(RegQueryValueExW(key, L"number", nullptr, &type, bytes, &size) == 0);
    Expect(type == REG_DWORD && size == 4 && value == written);
    size = 2;
    Expect(RegQueryValueExW(key, L"number", nullptr, nullptr, bytes, &size) == ERROR_MORE_DATA && size == 4);
    Expect(RegQueryValueExW(key, L"another", nullptr, &type, bytes, &size) == ERROR_FILE_NOT_FOUND);
}

void AskRegistry()
{
    HKEY key = nullptr;
    HKEY inner = nullptr;
    Expect(RegCreateKeyExW(HKEY_CURRENT_USER, keyPath, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                           nullptr, &key, nullptr) == 0);
    Expect(RegCreateKeyExW(key, L"inner", 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                           &inner, nullptr) == 0);
    Expect(RegCloseKey(inner) == 0);
    AskValues(key);
    DWORD keys = 0;
    DWORD longest = 0;
    Expect(RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, &longest, nullptr, nullptr, nullptr,
                            nullptr, nullptr, nullptr) == 0);
    Expect(keys == 1 && longest == 5);
    wchar_t name[6];
    DWORD characters = 6;
    Expect(RegEnumKeyExW(key, 0, name, &characters, nullptr, nullptr, nullptr, nullptr) == 0);
    Expect(characters == 5 && _wcsicmp(name, L"INNER") == 0);
    Expect(RegOpenKeyExW(key, L"outer", 0, KEY_ALL_ACCESS, &inner) == ERROR_FILE_NOT_FOUND);
    Expect(RegCloseKey(key) == 0);
}

void AskShell()
{
    IMalloc* allocator = nullptr;
    ITEMIDLIST* item = nullptr;
    wchar_t path[MAX_PATH];
    Expect(SUCCEEDED(SHGetMalloc(&allocator)));
    Expect(SUCCEEDED(SHGetSpecialFolderLocation(nullptr, CSIDL_STARTMENU, &item)));
    Expect(SHGetPathFromIDList(item, path) && wcsstr(path, L"Start Menu"));
    allocator->Free(item);
    Expect(allocator->Release() == 0);

    SHFILEINFOW info = {};
    info.iIcon = -1;
    const auto icons = reinterpret_cast<HIMAGELIST>(
        SHGetFileInfo(L"\\", 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
    int width = 0;
    int height = 0;
    Expect(icons && info.iIcon >= 0);
    Expect(ImageList_GetIconSize(icons, &width, &height) && width == 16 && height == 16);
}

void AskImages()
{
    void* block = LocalAlloc(LMEM_FIXED, sizeof smallPicture);
    memcpy(block, &smallPicture, sizeof smallPicture);
    IImage* image = ImageOf(block, sizeof smallPicture);
    Expect(image);
    ImageInfo info;
    Expect(SUCCEEDED(image->GetImageInfo(&info)) && info.Width == 2 && info.Height == 1);
    Expect(image->AddRef() == 2 && image->Release() == 1);
    Expect(image->Release() == 0);
}
