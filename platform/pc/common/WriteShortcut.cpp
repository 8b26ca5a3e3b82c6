// Making shortcut files.
#include "platform/pc/common/WriteShortcut.h"

#include "platform/pc/common/ComScope.h"
#include "platform/pc/common/DevicePath.h"

#include <shlobj.h>

namespace handheld {

// A program's path as the device knows it.
static std::wstring OnDevice(const std::wstring& path)
{
    const std::wstring root = DevicePath(L"\\");
    const std::wstring beginning = path.substr(0, root.size());
    return lstrcmpiW(beginning.c_str(), root.c_str()) == 0 ? path.substr(root.size() - 1) : path;
}

// Empty when not every character can be had.
static std::string Narrow(const std::wstring& text)
{
    std::string bytes(text.size() * 4, '\0');
    BOOL lost = FALSE;
    const int size =
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.c_str(), static_cast<int>(text.size()),
                            bytes.data(), static_cast<int>(bytes.size()), nullptr, &lost);
    bytes.resize(lost ? 0 : static_cast<size_t>(size));
    return bytes;
}

static bool WriteText(const std::wstring& file, const std::string& command)
{
    const HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    const std::string text = std::to_string(command.size()) + '#' + command;
    DWORD written = 0;
    const BOOL done = WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(handle);
    return done && written == text.size();
}

static bool WriteLink(const std::wstring& file, const std::wstring& program)
{
    const ComScope com;
    auto* const link = ComScope::Create<IShellLinkW>(CLSID_ShellLink, IID_IShellLinkW);
    if (!link) {
        return false;
    }
    IPersistFile* saver = nullptr;
    bool done = SUCCEEDED(link->SetPath(program.c_str())) &&
                SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&saver)));
    if (done) {
        done = SUCCEEDED(saver->Save(file.c_str(), TRUE));
        saver->Release();
    }
    link->Release();
    return done;
}

bool WriteShortcut(const std::wstring& file, const std::wstring& program, ShortcutForm form)
{
    const std::string command = Narrow(L'"' + OnDevice(program) + L'"');
    return form == ShortcutForm::Text && !command.empty() ? WriteText(file, command)
                                                          : WriteLink(file, program);
}

} // namespace handheld
