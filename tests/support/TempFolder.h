// A folder of the test's own under the user's temporary folder.
#pragma once

#include <string>
#include <vector>

class TempFolder
{
  private:
    std::wstring folder; // without a backslash at its end

  public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::wstring& Folder() const { return folder; }
    std::wstring Path(const wchar_t* name) const { return folder + L"\\" + name; }

    // Both create what they name and return its path.
    std::wstring WriteFile(const wchar_t* name, const std::vector<unsigned char>& bytes) const;
    std::wstring MakeFolder(const wchar_t* name) const;
};
