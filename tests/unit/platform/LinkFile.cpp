// Shortcut files for tests: the PC's form is written by the PC's own shell.
#include "tests/unit/platform/LinkFile.h"

#include "platform/pc/common/ComScope.h"

#include <gtest/gtest.h>

#include <shlobj.h>

std::wstring WriteTextLink(const TempFolder& folder, const wchar_t* name, const std::string& command)
{
    const std::string text = std::to_string(command.size()) + "#" + command;
    return folder.WriteFile(name, {text.begin(), text.end()});
}

std::wstring WritePcLink(const TempFolder& folder, const wchar_t* name, const wchar_t* target,
                         const wchar_t* arguments, const wchar_t* startFolder)
{
    const std::wstring path = folder.Path(name);
    const handheld::ComScope com;
    auto* const link = handheld::ComScope::Create<IShellLinkW>(CLSID_ShellLink, IID_IShellLinkW);
    EXPECT_NE(link, nullptr);
    link->SetPath(target);
    link->SetArguments(arguments);
    link->SetWorkingDirectory(startFolder);
    IPersistFile* file = nullptr;
    link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    EXPECT_EQ(file->Save(path.c_str(), TRUE), S_OK);
    file->Release();
    link->Release();
    return path;
}
