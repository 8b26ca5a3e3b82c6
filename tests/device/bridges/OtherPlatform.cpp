// What the PC has and the device has not, or has otherwise.
#include "tests/device/bridges/Hidden.h"
#include "tests/device/bridges/Misuse.h"

// Numbers of the desktop's.
static constexpr int desktopHighlight = 13;
static constexpr UINT_PTR desktopWindow = 5;

void ColourWithoutItsMark()
{
    GetSysColor(desktopHighlight);
}

void BrushWithoutItsMark()
{
    const RECT area = {0, 0, 1, 1};
    const HDC screen = GetDC(nullptr);
    FillRect(screen, &area, reinterpret_cast<HBRUSH>(desktopWindow + 1));
}

static void Format(wchar_t* text, const wchar_t* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    _vsnwprintf(text, 32, format, arguments);
    va_end(arguments);
}

void WideNumberInAFormat()
{
    wchar_t text[32];
    Format(text, L"%d %I64u", 1, static_cast<uint64_t>(5));
}

void CharacterBehindTheFormat()
{
    wchar_t* text = Hidden(new wchar_t[32]);
    Format(text, L"%d", 5);
    if (text[2] == 5) {
        Sleep(1);
    }
}

void MovableBlock()
{
    LocalAlloc(LMEM_MOVEABLE, 4);
}

void FunctionThatIsMissing()
{
    const HMODULE library = LoadLibraryW(L"coredll.dll");
    const FARPROC function = GetProcAddressW(library, L"NoSuchFunction");
    Hidden(function)();
}

// The libraries that the start-up code looks into stay loaded; this is none of them.
void LibraryAfterItsEnd()
{
    const HMODULE library = LoadLibraryW(L"toolhelp.dll");
    LoadLibraryW(L"toolhelp.dll");
    FreeLibrary(library);
    GetProcAddressW(library, L"Process32First");
    FreeLibrary(library);
    GetProcAddressW(library, L"Process32First");
}

void WindowRestored()
{
    static constexpr int desktopRestore = 9;
    ShowWindow(nullptr, desktopRestore);
}

void ExtendedDialog()
{
    static constexpr DWORD form[16] = {0xFFFF0001};
    CreateDialogIndirectParamW(GetModuleHandleW(nullptr), reinterpret_cast<const DLGTEMPLATE*>(form), nullptr,
                               nullptr, 0);
}

static HWND Control(const wchar_t* className)
{
    return CreateWindowExW(0, className, nullptr, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
}

void ColumnOfTheDesktop()
{
    LVCOLUMNW column = {};
    column.mask = 0x40; // a least width
    SendMessageW(Control(WC_LISTVIEWW), LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
}

void RowOfTheDesktop()
{
    LVITEMW item = {};
    item.mask = 0x100; // a group
    SendMessageW(Control(WC_LISTVIEWW), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

void TreeItemOfTheDesktop()
{
    TVINSERTSTRUCTW insertion = {};
    insertion.item.mask = 0x80; // a height
    SendMessageW(Control(WC_TREEVIEWW), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion));
}
