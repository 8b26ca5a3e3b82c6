// Top-level windows that exist only in a script: what the program asks about windows is answered from it.
#pragma once

#include "tests/support/ImportHook.h"

#include <windows.h>

#include <map>
#include <string>
#include <vector>

struct ScriptedWindow
{
    std::wstring title;
    std::wstring className = L"Application";
    HWND owner = nullptr;
    bool visible = true;
    bool enabled = true;
    LONG style = 0;
    LONG exStyle = 0;
    DWORD processId = 0;
    RECT rect = {};
};

struct SentMessage
{
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// One at a time. A window that is not in the script has gone: questions about it fail and leave what they
// were given untouched.
class ScriptedWindows
{
  public:
    std::map<HWND, ScriptedWindow> windows;
    std::vector<HWND> order;             // front-most first
    std::map<DWORD, std::wstring> paths; // of the processes' executables; any other process cannot be asked
    std::vector<SentMessage> sent;       // by SendMessageW, to anything
    std::vector<DWORD> askedPaths;       // processes whose path was asked for
    std::vector<DWORD> askedPathSizes;   // the buffers' sizes, in characters
    int longestText = 0;                 // the largest buffer given for a title or class name
    int lifeInQuestions = -1;            // all windows are gone after so many questions; -1: never
    LRESULT answer = 0;                  // of SendMessageW

    ScriptedWindows();
    ~ScriptedWindows();
    ScriptedWindows(const ScriptedWindows&) = delete;
    ScriptedWindows& operator=(const ScriptedWindows&) = delete;

    // Behind those that are there already.
    HWND Add(const ScriptedWindow& window);
    // Null for a window that has gone.
    const ScriptedWindow* Ask(HWND window);

  private:
    ImportHook hooks[12];
};
