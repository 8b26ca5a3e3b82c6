// A Start menu that exists only in a script: what the program asks the shell and the disk about it is
// answered from it.
#pragma once

#include "tests/support/ImportHook.h"

#include "platform/ce.h"

#include <map>
#include <string>
#include <vector>

// One at a time. Searches of folders that are not in the script go to whoever was there before.
class ScriptedStartMenu
{
  public:
    struct Entry
    {
        std::wstring name;
        bool isFolder = false;
    };

    std::wstring place = L"\\Menu";                     // as the shell tells it
    std::map<std::wstring, std::vector<Entry>> folders; // by path with a backslash at its end
    std::map<std::wstring, std::wstring> targets;       // by path; any other target cannot be read
    std::vector<std::wstring> calls;                    // the questions to the shell, and the searches
    HRESULT allocatorAnswer = S_OK;
    HRESULT locationAnswer = S_OK;
    bool givesItem = true;
    bool givesPath = true;
    bool keepsToFolders = true; // false: a search for folders finds files too
    HWND askedOwner = nullptr;
    int items = 0;      // lists that were not freed yet
    int allocators = 0; // those that were not released yet
    int searches = 0;   // those that were not closed yet
    bool badRequest = false;

    ScriptedStartMenu();
    ~ScriptedStartMenu();
    ScriptedStartMenu(const ScriptedStartMenu&) = delete;
    ScriptedStartMenu& operator=(const ScriptedStartMenu&) = delete;

    // Below the Start menu's folder: L"Games\\Solitaire.lnk". The folders on the way are made.
    std::wstring Add(const std::wstring& shortcut);
    std::wstring Add(const std::wstring& shortcut, const std::wstring& target);
    void AddFolder(const std::wstring& folder);
    void Remove(const std::wstring& shortcut);
    // So many more: "Program 0" and so on.
    void AddMany(int count);

  private:
    ImportHook hooks[7];
};
