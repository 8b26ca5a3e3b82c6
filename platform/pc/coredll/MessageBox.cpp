// Message boxes; in a run without a user they are written to the standard error output.
#include "platform/pc/common/MessageBoxes.h"

#include <string>

static constexpr wchar_t headlessVariable[] = L"HANDHELD_HEADLESS";

static bool IsHeadless()
{
    wchar_t value[4];
    return GetEnvironmentVariableW(headlessVariable, value, 4) == 1 && value[0] == L'1';
}

// "caption\ntext\n" in UTF-8.
static void WriteToStandardError(const wchar_t* text, const wchar_t* caption)
{
    const std::wstring message =
        std::wstring(caption ? caption : L"Error") + L"\n" + (text ? text : L"") + L"\n";
    const int characters = static_cast<int>(message.size());
    std::string bytes(message.size() * 3, '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, message.c_str(), characters, bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), bytes.data(), static_cast<DWORD>(size), &written, nullptr);
}

// What a user would press who wants nothing to happen.
static int HarmlessAnswer(UINT type)
{
    switch (type & MB_TYPEMASK) {
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return IDNO;
    case MB_OKCANCEL:
    case MB_RETRYCANCEL:
        return IDCANCEL;
    case MB_ABORTRETRYIGNORE:
        return IDABORT;
    default:
        return IDOK;
    }
}

extern "C" int WINAPI ce_MessageBoxW(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type)
{
    if (IsHeadless()) {
        WriteToStandardError(text, caption);
        return HarmlessAnswer(type);
    }
    return handheld::ShowMessageBox(owner, text, caption, type);
}
