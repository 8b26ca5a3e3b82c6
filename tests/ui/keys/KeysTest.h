// What the tests of the hardware keys dialogs start from: the program over a Start menu that is the test's
// own, and a dialog in its loop.
#pragma once

#include "keys/CDialogKeys.h"
#include "keys/CDialogKeys_SP.h"
#include "tests/support/ScriptedStartMenu.h"
#include "tests/ui/ProgramTest.h"

#include <functional>
#include <string>
#include <vector>

class KeysTest : public ProgramTest
{
  protected:
    static constexpr int keyList = 1005;
    static constexpr int pressList = 1006;
    static constexpr int holdList = 1007;
    static constexpr int homeList = 1006;
    static constexpr UINT enter = 114;
    static constexpr UINT showKey = 176;

    struct Opened
    {
        ProgramApp& app;
        HWND dialog;
    };
    using Step = std::function<void(Opened&)>;

    ScriptedStartMenu menu;
    SHomeKey homeKey; // the application's, as the Smartphone's dialog sees it

    // Opens a dialog; the step runs inside its loop. One that leaves it open is followed by a cancel. The
    // result is the dialog's.
    int OpenKeys(const Step& step);
    int OpenHomeKey(const Step& step);

    static void Run(const Opened& opened, UINT command)
    {
        SendMessageW(opened.dialog, WM_COMMAND, command, 0);
    }
    static HWND Control(const Opened& opened, int id) { return GetDlgItem(opened.dialog, id); }
    static RECT Place(const Opened& opened, int id);
    // As a user does with the stylus or the keys.
    static void SelectKey(const Opened& opened, int row);
    static void Choose(const Opened& opened, int list, int item);
    // Chooses "Start application"; the step runs in the picker's loop, and what leaves it open cancels it.
    static void ChooseApplication(const Opened& opened, int list, const Step& inPicker);

    static std::vector<std::wstring> Items(const Opened& opened, int list);
    static int Selected(const Opened& opened, int list);
    // The text of the selected item; empty without one.
    static std::wstring Shown(const Opened& opened, int list);
    static int LastItem(const Opened& opened, int list);

  private:
    int Open(const Step& step, const std::function<int(ProgramApp&)>& show);
};
