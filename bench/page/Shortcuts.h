// A thousand shortcuts in forty folders of the Start menu, gone with this object.
#pragma once

#include <string>
#include <vector>

class Shortcuts
{
    std::vector<std::wstring> files;
    std::vector<std::wstring> folders;

  public:
    // startMenu: with a backslash at its end.
    explicit Shortcuts(const std::wstring& startMenu);
    Shortcuts(const Shortcuts&) = delete;
    Shortcuts& operator=(const Shortcuts&) = delete;
    ~Shortcuts();

    bool Complete() const;
};
