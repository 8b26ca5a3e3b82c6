// Structures of a size that the device does not take.
#include "tests/device/bridges/Misuse.h"

void ShortProcessEntry()
{
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof entry - 8;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS, 0);
    Process32First(snapshot, &entry);
}

void ShortModuleEntry()
{
    MODULEENTRY32 entry = {};
    entry.dwSize = sizeof entry - 12;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPNOHEAPS, 0);
    Module32First(snapshot, &entry);
}

void ShortHeapEntry()
{
    HEAPLIST32 list = {};
    list.dwSize = sizeof list;
    HEAPENTRY32 entry = {};
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, 0);
    Heap32ListFirst(snapshot, &list);
    Heap32First(snapshot, &entry, list.th32ProcessID, list.th32HeapID);
}

void ShortFileInfo()
{
    SHFILEINFOW info = {};
    SHGetFileInfo(L"\\", 0, &info, sizeof info - 4, SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
}

void ShortExecuteInfo()
{
    SHELLEXECUTEINFOW info = {};
    info.lpFile = L"\\nothing";
    ShellExecuteEx(&info);
}

void ShortMemoryStatus()
{
    MEMORYSTATUS status = {};
    GlobalMemoryStatus(&status);
}

void ShortVersion()
{
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version - 2;
    GetVersionExW(&version);
}

void ShortDisplayMode()
{
    DEVMODEW mode = {};
    mode.dmSize = sizeof mode + 28;
    ChangeDisplaySettingsEx(nullptr, &mode, nullptr, CDS_TEST, nullptr);
}

static void SetValue(DWORD kind, const void* data, DWORD size)
{
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_ALL_ACCESS, &key);
    RegSetValueExW(key, L"QuorvaneMisuse", 0, kind, static_cast<const BYTE*>(data), size);
}

void TextWithoutItsZero()
{
    SetValue(REG_SZ, L"four", 8);
}

void NumberOfTwoBytes()
{
    const DWORD number = 5;
    SetValue(REG_DWORD, &number, 2);
}

void ShortHeapList()
{
    HEAPLIST32 list = {};
    Heap32ListFirst(CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, 0), &list);
}

// The size that it has on a PC of 64 bits.
void ShortMenuBar()
{
    SHMENUBARINFO info = {};
    info.cbSize = 56;
    SHCreateMenuBar(&info);
}

void ShortGesture()
{
    SHRGINFO gesture = {};
    SHRecognizeGesture(&gesture);
}

void ShortActivation()
{
    SHACTIVATEINFO info = {};
    SHHandleWMActivate(nullptr, 0, 0, &info, 0);
}

void ShortBitmap()
{
    BITMAP bitmap = {};
    GetObjectW(CreateCompatibleBitmap(GetDC(nullptr), 1, 1), sizeof bitmap - 4, &bitmap);
}

void ShortClasses()
{
    const INITCOMMONCONTROLSEX classes = {4, ICC_TREEVIEW_CLASSES};
    const HMODULE library = LoadLibraryW(L"commctrl.dll");
    auto* function = reinterpret_cast<void*>(GetProcAddressW(library, L"InitCommonControlsEx"));
    reinterpret_cast<BOOL (*)(const INITCOMMONCONTROLSEX*)>(function)(&classes);
}
