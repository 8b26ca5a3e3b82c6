// What the handheld's hardware buttons start, as the registry says.
#include "platform/pc/common/ButtonCommand.h"

#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/MachineKeys.h"

#include <algorithm>

namespace handheld {

static constexpr wchar_t blanks[] = L" \t";

static bool IsFile(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(DevicePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::wstring ButtonKey(int button)
{
    static constexpr wchar_t digits[] = L"0123456789ABCDEF";
    return std::wstring(buttonsKey) + L"\\40" + digits[button >> 4 & 15] + digits[button & 15];
}

std::wstring ButtonCommand(int button)
{
    HKEY key = nullptr;
    if (OpenMachineKey(HKEY_LOCAL_MACHINE, ButtonKey(button).c_str(), 0, KEY_QUERY_VALUE, &key) !=
        ERROR_SUCCESS) {
        return {};
    }
    std::wstring text;
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExW(key, L"Default", nullptr, nullptr, nullptr, &size) == ERROR_SUCCESS) {
        text.resize(size / sizeof(wchar_t) + 1);
        size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LONG result =
            RegQueryValueExW(key, L"Default", nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
        // Neither a zero at the end nor an even size can be relied on.
        text.resize(result == ERROR_SUCCESS && type == REG_SZ ? size / sizeof(wchar_t) : 0);
        text.resize(std::min(text.size(), text.find(L'\0')));
    }
    RegCloseKey(key);
    return text;
}

// An unquoted path may hold blanks: the first blank before which there is a file ends it.
static size_t EndOfFile(const std::wstring& command)
{
    for (size_t end = command.find_first_of(blanks); end != std::wstring::npos;
         end = command.find_first_of(blanks, end + 1)) {
        if (IsFile(command.substr(0, end))) {
            return end;
        }
    }
    return IsFile(command) ? command.size() : command.find_first_of(blanks);
}

static std::wstring Trimmed(const std::wstring& text)
{
    const size_t begin = text.find_first_not_of(blanks);
    return begin == std::wstring::npos ? std::wstring()
                                       : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

ButtonStart SplitButtonCommand(const std::wstring& command)
{
    const std::wstring line = Trimmed(command);
    if (line.empty()) {
        return {};
    }
    if (line.front() == L'"') {
        const size_t end = line.find(L'"', 1);
        return {line.substr(1, end == std::wstring::npos ? end : end - 1),
                end == std::wstring::npos ? std::wstring() : Trimmed(line.substr(end + 1))};
    }
    const size_t end = EndOfFile(line);
    return {line.substr(0, end), end == std::wstring::npos ? std::wstring() : Trimmed(line.substr(end))};
}

} // namespace handheld
