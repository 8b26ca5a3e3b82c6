// handheld.exe: the shell of the PC's handheld, the Today screen and the top bar. It runs beside the
// programs.
#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/handheld/Cards.h"
#include "platform/pc/handheld/Control.h"
#include "platform/pc/handheld/Keys.h"
#include "platform/pc/handheld/Options.h"
#include "platform/pc/handheld/ScreenTurn.h"
#include "platform/pc/handheld/StartMenu.h"
#include "platform/pc/handheld/Today.h"
#include "platform/pc/handheld/TopBar.h"

#include <shellapi.h>

static constexpr int failed = 1;
static constexpr int wrongUsage = 2;
static constexpr int longestWait = 30000; // ms
static constexpr int waitStep = 50;

static void Say(const std::wstring& text)
{
    std::string bytes(text.size() * 3, '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), static_cast<int>(text.size()),
                                         bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    DWORD written = 0;
    if (!WriteFile(GetStdHandle(STD_ERROR_HANDLE), bytes.data(), static_cast<DWORD>(size), &written,
                   nullptr)) {
        MessageBoxW(nullptr, text.c_str(), L"Handheld", MB_OK);
    }
}

static std::vector<std::wstring> Arguments()
{
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.emplace_back(words[i]);
    }
    LocalFree(words);
    return arguments;
}

static int WaitUntilReady()
{
    for (int waited = 0; waited < longestWait; waited += waitStep) {
        if (Control::IsReady(Control::Find())) {
            return 0;
        }
        Sleep(waitStep);
    }
    Say(L"No handheld has come up.\n");
    return failed;
}

static int EndRunning()
{
    const HWND control = Control::Find();
    if (!control) {
        return 0;
    }
    DWORD id = 0;
    GetWindowThreadProcessId(control, &id);
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
    PostMessageW(control, WM_CLOSE, 0, 0);
    const bool ended = process && WaitForSingleObject(process, longestWait) == WAIT_OBJECT_0;
    if (process) {
        CloseHandle(process);
    }
    return ended ? 0 : failed;
}

// Programs that are started without the environment variable find the profile in the registry.
static bool ChooseProfile(const std::wstring& file)
{
    handheld::Profile ignored;
    wchar_t path[MAX_PATH];
    const DWORD length = GetFullPathNameW(file.c_str(), MAX_PATH, path, nullptr);
    if (length == 0 || length >= MAX_PATH || !handheld::LoadProfile(path, ignored)) {
        return false;
    }
    SetEnvironmentVariableW(handheld::profileVariable, path);
    return RegSetKeyValueW(HKEY_CURRENT_USER, handheld::profileKey, handheld::profileValue, REG_SZ, path,
                           (length + 1) * sizeof(wchar_t)) == ERROR_SUCCESS;
}

static bool CreateEmptyFile(const std::wstring& path)
{
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(file);
    return true;
}

static int RunShell(const Options& options)
{
    if (Control::Find()) {
        Say(L"A handheld is already running.\n");
        return failed;
    }
    if (options.profile.empty()) {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, handheld::profileKey, handheld::profileValue);
    } else if (!ChooseProfile(options.profile)) {
        Say(L"Cannot read the profile " + options.profile + L"\n");
        return failed;
    }
    StartTurned(handheld::ActiveProfile().orientation);
    MakeCards();
    FillStartMenu();
    FillButtons();
    Control control;
    Today today;
    if (!control.Open() || !today.Open()) {
        return failed;
    }
    TopBar topBar(today.Window());
    if (!topBar.Open()) {
        return failed;
    }
    Keys keys(control.Window(), today.Window());
    control.Serve(&keys);
    if (!keys.Start()) {
        Say(L"The system does not let the handheld see its keys.\n");
    }
    SetForegroundWindow(today.Window());
    control.SetReady();
    if (!options.ready.empty() && !CreateEmptyFile(options.ready)) {
        Say(L"Cannot create the file " + options.ready + L"\n");
        return failed;
    }
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    control.Serve(nullptr);
    return 0;
}

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    Options options;
    if (!ParseOptions(Arguments(), options)) {
        Say(optionsHelp);
        return wrongUsage;
    }
    switch (options.action) {
    case Options::Action::Wait:
        return WaitUntilReady();
    case Options::Action::End:
        return EndRunning();
    case Options::Action::ListKeys:
        Say(KeyListText());
        return 0;
    case Options::Action::Help:
        Say(optionsHelp);
        return 0;
    default:
        return RunShell(options);
    }
}
