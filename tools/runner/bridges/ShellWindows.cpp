// What the shell library does for windows: menu bars, activation, full-screen dialogs, gestures.
#include "tools/runner/bridges/ActiveMessages.h"
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

namespace {

struct MenuBarInfo
{
    Word size;
    Word parent;
    Word flags;
    Word id;
    Word instance;
    LONG bitmap;
    LONG images;
    Word bar;
    Word colour;
};
static_assert(sizeof(MenuBarInfo) == 36);

struct ActivateInfo
{
    Word size;
    Word lastFocus;
    Word flags;
};
static_assert(sizeof(ActivateInfo) == 12);

struct InitDialogInfo
{
    Word mask;
    Word dialog;
    Word flags;
};
static_assert(sizeof(InitDialogInfo) == 12);

struct GestureInfo
{
    Word size;
    Word window;
    POINT down;
    Word flags;
};
static_assert(sizeof(GestureInfo) == 20);

// The host's, with the flags as one word.
struct HostActivateInfo
{
    DWORD size;
    HWND lastFocus;
    UINT flags;
};
static_assert(sizeof(HostActivateInfo) == sizeof(SHACTIVATEINFO));

} // namespace

static Word DoCreateMenuBar(Call& call)
{
    const auto record = call.RecordAt<MenuBarInfo>(0);
    NeedSize(call, record.Get(&MenuBarInfo::size), sizeof(MenuBarInfo));
    SHMENUBARINFO info = {};
    info.cbSize = sizeof(info);
    info.hwndParent = HandleOf<HWND>(record.Get(&MenuBarInfo::parent));
    info.dwFlags = record.Get(&MenuBarInfo::flags);
    info.nToolBarId = record.Get(&MenuBarInfo::id);
    info.hInstRes = reinterpret_cast<HINSTANCE>(call.ModuleOf(record.Get(&MenuBarInfo::instance)));
    info.nBmpId = record.Get(&MenuBarInfo::bitmap);
    info.cBmpImages = record.Get(&MenuBarInfo::images);
    info.clrBk = record.Get(&MenuBarInfo::colour);
    const BOOL result = SHCreateMenuBar(&info);
    if (result) {
        record.Set(&MenuBarInfo::bar, WordOf(info.hwndMB));
    }
    return static_cast<Word>(result);
}

static HostActivateInfo ActivateInfoOf(Call& call, const Record<ActivateInfo>& record)
{
    if (!record) {
        call.guest.Misuse("no activation record");
    }
    NeedSize(call, record.Get(&ActivateInfo::size), sizeof(ActivateInfo));
    return {sizeof(SHACTIVATEINFO), HandleOf<HWND>(record.Get(&ActivateInfo::lastFocus)),
            record.Get(&ActivateInfo::flags)};
}

static Word GiveActivateInfo(const Record<ActivateInfo>& record, const HostActivateInfo& info, BOOL result)
{
    record.Set(&ActivateInfo::lastFocus, WordOf(info.lastFocus));
    record.Set(&ActivateInfo::flags, Word{info.flags});
    return static_cast<Word>(result);
}

static Word DoHandleActivate(Call& call)
{
    const auto record = call.RecordAt<ActivateInfo>(3);
    HostActivateInfo info = ActivateInfoOf(call, record);
    const BOOL result = SHHandleWMActivate(HandleAt<HWND>(call, 0), call.Argument(1),
                                           ActiveMessages::Instance().HostLParam(call.Argument(2)),
                                           reinterpret_cast<SHACTIVATEINFO*>(&info), call.Argument(4));
    return GiveActivateInfo(record, info, result);
}

static Word DoHandleSettingChange(Call& call)
{
    const auto record = call.RecordAt<ActivateInfo>(3);
    HostActivateInfo info = ActivateInfoOf(call, record);
    const BOOL result = SHHandleWMSettingChange(HandleAt<HWND>(call, 0), call.Argument(1),
                                                ActiveMessages::Instance().HostLParam(call.Argument(2)),
                                                reinterpret_cast<SHACTIVATEINFO*>(&info));
    return GiveActivateInfo(record, info, result);
}

static Word DoInitDialog(Call& call)
{
    const auto record = call.RecordAt<InitDialogInfo>(0);
    SHINITDLGINFO info = {};
    info.dwMask = record.Get(&InitDialogInfo::mask);
    info.hDlg = HandleOf<HWND>(record.Get(&InitDialogInfo::dialog));
    info.dwFlags = record.Get(&InitDialogInfo::flags);
    return static_cast<Word>(SHInitDialog(&info));
}

static Word DoRecognizeGesture(Call& call)
{
    const auto record = call.RecordAt<GestureInfo>(0);
    NeedSize(call, record.Get(&GestureInfo::size), sizeof(GestureInfo));
    SHRGINFO info = {};
    info.cbSize = sizeof(info);
    info.hwndClient = HandleOf<HWND>(record.Get(&GestureInfo::window));
    info.ptDown = record.Get(&GestureInfo::down);
    info.dwFlags = record.Get(&GestureInfo::flags);
    return SHRecognizeGesture(&info);
}

static Word DoSendBack(Call& call)
{
    SHSendBackToFocusWindow(call.Argument(0), call.Argument(1),
                            ActiveMessages::Instance().HostLParam(call.Argument(2)));
    return call.NoResult();
}

static constexpr Bridge shellWindowRows[] = {
    {"SHCreateMenuBar", DoCreateMenuBar},
    {"SHHandleWMActivate", DoHandleActivate},
    {"SHHandleWMSettingChange", DoHandleSettingChange},
    {"SHInitDialog", DoInitDialog},
    {"SHRecognizeGesture", DoRecognizeGesture},
    {"SHSendBackToFocusWindow", DoSendBack},
};

Bridges ShellWindowBridges()
{
    return shellWindowRows;
}

} // namespace runner
