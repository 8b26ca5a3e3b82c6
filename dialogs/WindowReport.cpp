// The plain-text report on a window.
#include "dialogs/WindowReport.h"

#include "dialogs/CDialogInfo.h"
#include "framework/CVireoApp.h"
#include "framework/ProcessFacts.h"
#include "framework/ReportText.h"
#include "framework/WindowFacts.h"

struct SStyleName
{
    uint32_t bits; // any of them; 0 is always named
    const wchar_t* text;
};

// The order and the doubled meanings are the report's own: WS_OVERLAPPED names every window, either half of
// WS_CAPTION names it, and two bits have two names each.
static constexpr SStyleName styleNames[] = {
    {0x40000000, L"\r\n - WS_CHILD"},        {0x10000000, L"\r\n - WS_VISIBLE"},
    {0x08000000, L"\r\n - WS_DISABLED"},     {0x00020000, L"\r\n - WS_GROUP"},
    {0x00010000, L"\r\n - WS_TABSTOP"},      {0, L"\r\n - WS_OVERLAPPED"},
    {0x04000000, L"\r\n - WS_CLIPSIBLINGS"}, {0x02000000, L"\r\n - WS_CLIPCHILDREN"},
    {0x00C00000, L"\r\n - WS_CAPTION"},      {0x00800000, L"\r\n - WS_BORDER"},
    {0x00400000, L"\r\n - WS_DLGFRAME"},     {0x00200000, L"\r\n - WS_VSCROLL"},
    {0x00100000, L"\r\n - WS_HSCROLL"},      {0x00080000, L"\r\n - WS_SYSMENU"},
    {0x00040000, L"\r\n - WS_THICKFRAME"},   {0x00020000, L"\r\n - WS_MAXIMIZEBOX"},
    {0x00010000, L"\r\n - WS_MINIMIZEBOX"},  {0x80000000, L"\r\n - WS_POPUP"},
};

static constexpr SStyleName extendedStyleNames[] = {
    {0x08000000, L"\r\n - WS_EX_NOACTIVATE"},   {0x00000001, L"\r\n - WS_EX_DLGMODALFRAME"},
    {0x00000008, L"\r\n - WS_EX_TOPMOST"},      {0x00000100, L"\r\n - WS_EX_WINDOWEDGE"},
    {0x00000200, L"\r\n - WS_EX_CLIENTEDGE"},   {0x00000400, L"\r\n - WS_EX_CONTEXTHELP"},
    {0x00001000, L"\r\n - WS_EX_RIGHT"},        {0x00004000, L"\r\n - WS_EX_LEFTSCROLLBAR"},
    {0x00020000, L"\r\n - WS_EX_STATICEDGE"},   {0x00100000, L"\r\n - WS_EX_NOINHERITLAYOUT"},
    {0x00400000, L"\r\n - WS_EX_LAYOUTRTL"},    {0x00000300, L"\r\n - WS_EX_OVERLAPPEDWINDOW"},
    {0x80000000, L"\r\n - WS_EX_CAPTIONOKBTN"}, {0x40000000, L"\r\n - WS_EX_NODRAG"},
    {0x20000000, L"\r\n - WS_EX_ABOVESTARTUP"}, {0x10000000, L"\r\n - WS_EX_INK"},
    {0x04000000, L"\r\n - WS_EX_NOANIMATION"},
};

template <size_t count>
static void AppendNames(CStr& report, const SStyleName (&names)[count], uint32_t bits)
{
    for (const SStyleName& name : names) {
        if (name.bits == 0 || (bits & name.bits) != 0) {
            report.Append(name.text);
        }
    }
}

void AppendStyleNames(CStr& report, uint32_t style)
{
    AppendNames(report, styleNames, style);
}

void AppendExtendedStyleNames(CStr& report, uint32_t extendedStyle)
{
    AppendNames(report, extendedStyleNames, extendedStyle);
}

static void AppendHandle(CStr& report, const wchar_t* label, HWND window)
{
    AppendLabelledHex(report, label, static_cast<uint32_t>(reinterpret_cast<ULONG_PTR>(window)));
}

static void AppendOwner(CStr& report, const wchar_t* label, HWND owner)
{
    CStr title;
    WindowTitle(owner, title);
    AppendHandle(report, label, owner);
    AppendLabelled(report, L"\r\nName: ", title);
}

static void AppendRect(CStr& report, const RECT& rect)
{
    report.Append(L"(");
    report.AppendInt(rect.left);
    report.Append(L",");
    report.AppendInt(rect.top);
    report.Append(L") - (");
    report.AppendInt(rect.right);
    report.Append(L",");
    report.AppendInt(rect.bottom);
    report.Append(L")");
}

static const wchar_t* YesNo(BOOL answer)
{
    return answer ? L"Yes" : L"No";
}

void AppendWindowReport(CStr& report, HWND window)
{
    CStr path;
    ProcessImagePath(WindowProcessId(window), path);
    CStr title;
    WindowTitle(window, title);
    CStr className;
    WindowClass(window, className);
    AppendLabelled(report, L"Executable:\r\n", path);
    AppendLabelled(report, L"\r\n\r\nWindow name: ", title);
    AppendLabelled(report, L"\r\nClass name: ", className);
    AppendHandle(report, L"\r\nWindow handle: 0x", window);

    const auto style = static_cast<uint32_t>(GetWindowLongPtrW(window, GWL_STYLE));
    if (HWND owner = GetWindow(window, GW_OWNER)) {
        AppendOwner(report, L"\r\n\r\nOwner window: 0x", owner);
        HWND topOwner = TopOwner(window);
        if (topOwner != owner) {
            AppendOwner(report, L"\r\nTopmost owner: 0x", topOwner);
        }
    }
    AppendLabelled(report, L"\r\n\r\nVisible: ", YesNo(IsWindowVisible(window)));
    AppendLabelled(report, L"\r\nEnabled: ", YesNo(IsWindowEnabled(window)));
    report.Append(L"\r\n\r\nStyles: ");
    AppendStyleNames(report, style);
    report.Append(L"\r\n\r\nExStyles: ");
    AppendExtendedStyleNames(report, static_cast<uint32_t>(GetWindowLongPtrW(window, GWL_EXSTYLE)));

    RECT rect = {};
    GetWindowRect(window, &rect);
    report.Append(L"\r\n\r\nWindow rect: ");
    AppendRect(report, rect);
}

bool TellWhenGone(HWND window)
{
    if (IsWindow(window)) {
        return false;
    }
    CVireoApp::Current()->ShowNotice(L"Window is no longer exists."); // spelled so on purpose
    return true;
}

void ShowWindowReport(HWND window)
{
    if (window == INVALID_HANDLE_VALUE || TellWhenGone(window)) {
        return;
    }
    CStr report;
    AppendWindowReport(report, window);
    CDialogInfo::Show(report);
}
