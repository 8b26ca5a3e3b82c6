// StartScreen: the program on its launcher page, with a Start menu of the test's own, used as a user does;
// the tests of that page derive from it.
#pragma once

#include "tests/e2e/PageScreen.h"
#include "tests/e2e/ScreenText.h"

#include <string>

class StartScreen : public PageScreen
{
  protected:
    HWND box = nullptr; // the search box
    const ScreenFont normal{FW_NORMAL, 0};

    StartScreen();

    static void TearDownTestSuite();
    // Begins with the shortcuts Calculator, Calendar, Notepad and WineMine, in two folders, and no search.
    void SetUp() override;

    // The folder of the menu, and paths in it.
    static const std::wstring& Menu();
    static bool RemoveMenu();
    static std::wstring InMenu(const std::wstring& name) { return Menu() + L"\\" + name; }
    // A shortcut of the device's form, or any other text as a file.
    static std::wstring Shortcut(const std::wstring& name, const std::wstring& command);
    static std::wstring File(const std::wstring& name, const std::string& bytes);

    // The list is left with this many rows.
    bool HasRows(int count) const;
    bool RowIs(int row, const std::wstring& name) const;
    // What the search box holds once it has this text.
    bool BoxHas(const std::wstring& text) const;
    bool HasMark(int row) const;
    // Types into whatever has the keyboard.
    void Search(const std::wstring& text) const;
    // The list's middle is empty but for this text.
    bool ListSays(const std::wstring& text) const;
    // Whether the page has the keyboard and nothing else is open.
    void ExpectUsable() const;
};

// Waits for the window of a program by its title, and closes it again; false when it does not come or go.
bool ComesAndGoes(const std::wstring& title);
