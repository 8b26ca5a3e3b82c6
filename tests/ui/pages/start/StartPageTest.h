// What the tests of the launcher page start from: the program with that page shown, over a Start menu that
// exists only in a script.
#pragma once

#include "pages/start/CViewStart.h"
#include "tests/support/ScriptedStartMenu.h"
#include "tests/ui/KeptFonts.h"
#include "tests/ui/ProgramTest.h"

class StartPageTest : public ProgramTest
{
  protected:
    using Names = std::vector<std::wstring>;
    using Rows = std::vector<int>;

    ScriptedStartMenu menu;

    // Runs a test inside the program, with the page shown.
    int OnPage(const std::function<void(ProgramApp&)>& test);
    // Each with a target of its own.
    void AddPrograms(const Names& names);

    static CViewStart& Page(ProgramApp& app) { return *static_cast<CViewStart*>(app.views->At(2)); }
    static HWND List(ProgramApp& app) { return GetDlgItem(Page(app).Window(), IDC_LIST); }
    static HWND Box(ProgramApp& app) { return GetDlgItem(Page(app).Window(), IDC_SEARCH); }
    // The place of one of the page's controls.
    static RECT OnPageRect(ProgramApp& app, HWND control);
    static int Count(ProgramApp& app);
    // The names that are listed.
    static Names Listed(ProgramApp& app);
    // Puts a text into the search box, which tells the page.
    static void Search(ProgramApp& app, const std::wstring& text);
    // Types it behind what is there, key by key.
    static void Type(ProgramApp& app, const std::wstring& text);
    // A row as the user selects it.
    static void Select(ProgramApp& app, int row);
    // It is selected, focused and marked, and in view; the focus is in the search box.
    static void ExpectSelected(ProgramApp& app, int row);
    static void Run(ProgramApp& app, UINT command) { SendMessageW(app.MainWindow(), WM_COMMAND, command, 0); }
    // The font that matches are drawn with.
    HGDIOBJ Underlined() const { return fonts.underlined.empty() ? nullptr : fonts.underlined.back(); }

    KeptFonts fonts;
};
