// The Start menu behind the flag of the top bar.
#include "platform/pc/handheld/StartMenu.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/FirstShortcuts.h"
#include "platform/pc/common/SoftKeys.h"
#include "platform/pc/common/SpecialFolder.h"
#include "platform/pc/common/StartFile.h"
#include "platform/pc/common/StartMenuTree.h"
#include "platform/pc/handheld/Front.h"
#include "platform/pc/handheld/OwnFolder.h"

#include <shlobj.h>

// Where the handheld remembers the Start menus that it has filled.
static constexpr wchar_t filledMenusKey[] = L"Software\\Quorvane Handheld\\Filled Start menus";

// The files that the commands of the menu start; a command is a file's place, counted from 1.
using Commands = std::vector<std::wstring>;

static std::wstring WithoutMnemonics(const std::wstring& name)
{
    std::wstring text;
    for (wchar_t character : name) {
        text.append(character == L'&' ? 2 : 1, character);
    }
    return text;
}

static HMENU MakeMenu(const handheld::StartMenuTree& tree, Commands& commands)
{
    const HMENU menu = CreatePopupMenu();
    for (const handheld::StartMenuProgram& program : tree.programs) {
        commands.push_back(program.shortcut);
        AppendMenuW(menu, MF_STRING, commands.size(), WithoutMnemonics(program.name).c_str());
    }
    for (const handheld::StartMenuTree& folder : tree.folders) {
        AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(MakeMenu(folder, commands)),
                    WithoutMnemonics(folder.name).c_str());
    }
    if (tree.IsEmpty()) {
        AppendMenuW(menu, MF_GRAYED, 0, L"No programs");
    }
    return menu;
}

static void Start(const std::wstring& shortcut)
{
    HANDLE process = nullptr;
    if (handheld::StartFile({shortcut}, process) && process) {
        AllowSetForegroundWindow(GetProcessId(process));
        CloseHandle(process);
    }
}

void FillStartMenu()
{
    const std::wstring& folder = handheld::ActiveProfile().startMenu;
    if (!folder.empty()) {
        handheld::FillStartMenuOnce(handheld::DevicePath(folder), OwnFolder(), filledMenusKey);
    }
}

void ShowStartMenu(HWND owner, POINT corner, const RECT& button)
{
    Commands commands;
    std::wstring folder;
    handheld::StartMenuTree tree;
    if (handheld::FindSpecialFolder(CSIDL_STARTMENU, folder)) {
        tree = handheld::ReadStartMenu(handheld::DevicePath(folder));
    }
    const HMENU menu = MakeMenu(tree, commands);
    const HWND previous = GetForegroundWindow();
    // Without the front the menu would get no keys, and would not close when another program is tapped.
    SetForegroundWindow(owner);
    handheld::MenuKey opener;
    opener.place = button;
    const int command = handheld::TrackMenu(menu, TPM_RETURNCMD, corner.x, corner.y, owner, nullptr, opener);
    DestroyMenu(menu);
    GiveFrontBack(owner, previous);
    if (command > 0) {
        Start(commands[static_cast<size_t>(command - 1)]);
    }
}
