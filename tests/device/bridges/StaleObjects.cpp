// Handles and objects that are used after their end, or as something else than they are.
#include "tests/device/bridges/Misuse.h"
#include "tests/device/bridges/SmallPicture.h"

static HKEY OpenSoftware()
{
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_ALL_ACCESS, &key);
    return key;
}

void KeyClosedTwice()
{
    const HKEY key = OpenSoftware();
    RegCloseKey(key);
    RegCloseKey(key);
}

void InventedKey()
{
    RegCloseKey(reinterpret_cast<HKEY>(0x12345678));
}

void SnapshotAsSearch()
{
    FindClose(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS, 0));
}

void SearchAfterItsEnd()
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(L"\\*", &found);
    FindClose(search);
    FindNextFileW(search, &found);
}

static HANDLE OpenFile()
{
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

void FileAfterItsEnd()
{
    const HANDLE file = OpenFile();
    CloseHandle(file);
    GetFileSize(file, nullptr);
}

void FileAsProcess()
{
    WaitForSingleObject(OpenFile(), 0);
}

void AllocatorReleasedTwice()
{
    IMalloc* allocator = nullptr;
    SHGetMalloc(&allocator);
    allocator->Release();
    allocator->Release();
}

void ItemFreedTwice()
{
    IMalloc* allocator = nullptr;
    ITEMIDLIST* item = nullptr;
    SHGetMalloc(&allocator);
    SHGetSpecialFolderLocation(nullptr, CSIDL_STARTMENU, &item);
    allocator->Free(item);
    allocator->Free(item);
}

void ImagesBlockFreed()
{
    void* block = LocalAlloc(LMEM_FIXED, sizeof smallPicture);
    memcpy(block, &smallPicture, sizeof smallPicture);
    IImage* image = ImageOf(block, sizeof smallPicture);
    LocalFree(block);
    image->Release();
}

void PenDeletedTwice()
{
    const HPEN pen = CreatePen(PS_SOLID, 1, 0);
    DeleteObject(pen);
    DeleteObject(pen);
}

// A program that ends with 0 says that all went well.
void AllocatorLeft()
{
    IMalloc* allocator = nullptr;
    SHGetMalloc(&allocator);
    TerminateProcess(GetCurrentProcess(), 0);
}

static LPARAM Insert(HWND tree, LPARAM parent)
{
    TVINSERTSTRUCTW insertion = {};
    insertion.hParent = reinterpret_cast<HTREEITEM>(parent);
    return SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion));
}

// It is below the one that is deleted.
void TreeItemAfterItsEnd()
{
    HWND tree = CreateWindowExW(0, WC_TREEVIEWW, nullptr, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    const LPARAM upper = Insert(tree, reinterpret_cast<LPARAM>(TVI_ROOT));
    const LPARAM lower = Insert(tree, upper);
    SendMessageW(tree, TVM_DELETEITEM, 0, upper);
    SendMessageW(tree, TVM_EXPAND, TVE_COLLAPSE, lower);
}

void ContextDeletedTwice()
{
    const HDC context = CreateCompatibleDC(nullptr);
    DeleteDC(context);
    DeleteDC(context);
}

void SelectedPenDeleted()
{
    const HDC context = CreateCompatibleDC(nullptr);
    const HPEN pen = CreatePen(PS_SOLID, 1, 0);
    SelectObject(context, pen);
    DeleteObject(pen);
}

void ComEndedBeforeAnImage()
{
    void* block = LocalAlloc(LMEM_FIXED, sizeof smallPicture);
    memcpy(block, &smallPicture, sizeof smallPicture);
    ImageOf(block, sizeof smallPicture); // which starts it
    CoUninitialize();
}

void ComEndedTwice()
{
    CoInitializeEx(nullptr, 0);
    CoUninitialize();
    CoUninitialize();
}
