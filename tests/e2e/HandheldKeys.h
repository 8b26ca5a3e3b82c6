// The handheld's keys as a program has them that runs on the substitutes.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

// The device's codes and modifiers.
inline constexpr int firstButton = 0xC1;
inline constexpr int homeKey = 0x5B;
inline constexpr UINT keyUpToo = 0x1000;

class HandheldKeys
{
  public:
    HandheldKeys();
    ~HandheldKeys();
    HandheldKeys(const HandheldKeys&) = delete;
    HandheldKeys& operator=(const HandheldKeys&) = delete;

    // Takes a key of the handheld from the shell for a window, which may be another program's.
    bool Claim(HWND window, int id, int key, UINT modifiers = MOD_WIN) const;
    bool Drop(int key) const;
    bool Release(HWND window, int id) const;
    bool IsDown(int key) const;
    void Lock() const;

  private:
    template <class Function>
    Function* Of(const char* name) const;

    HMODULE coredll;
};

bool IsSmartphoneSession();

// The command line by which a button starts the program.
std::wstring OwnCommand(const std::wstring& tail);

// The command line of a hardware button, which is as it was when the object has gone.
class ButtonDefault
{
  public:
    explicit ButtonDefault(int button);
    ~ButtonDefault();
    ButtonDefault(const ButtonDefault&) = delete;
    ButtonDefault& operator=(const ButtonDefault&) = delete;

    void Set(const std::wstring& command) const;
    void Set(DWORD type, const void* data, DWORD size) const;
    void Remove() const;

  private:
    HKEY key = nullptr;
    std::vector<BYTE> before;
};

// A file that commands of buttons add lines to.
class ButtonNote
{
  public:
    ButtonNote();
    ~ButtonNote();
    ButtonNote(const ButtonNote&) = delete;
    ButtonNote& operator=(const ButtonNote&) = delete;

    std::wstring Command(const std::wstring& line) const;
    // The lines, each with a semicolon behind it.
    bool Becomes(const std::string& lines) const;
};
