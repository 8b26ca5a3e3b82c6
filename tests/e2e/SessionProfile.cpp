// A profile of a test's own on the session's screen.
#include "tests/e2e/SessionProfile.h"

#include "platform/pc/common/ActiveProfile.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <fstream>

std::vector<unsigned char> Utf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::vector<unsigned char> bytes(text.size() * 3);
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, reinterpret_cast<char*>(bytes.data()),
                            static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<size_t>(size));
    return bytes;
}

std::wstring ScreenOfSession()
{
    wchar_t path[MAX_PATH] = {};
    DWORD size = sizeof(path);
    EXPECT_EQ(ERROR_SUCCESS, RegGetValueW(HKEY_CURRENT_USER, handheld::profileKey, handheld::profileValue,
                                          RRF_RT_REG_SZ, nullptr, path, &size));
    std::wstring section = L"[handheld]\n";
    for (const wchar_t* key : {L"platform", L"width", L"height", L"dpi"}) {
        wchar_t value[40] = {};
        EXPECT_NE(0u, GetPrivateProfileStringW(L"handheld", key, L"", value, 40, path)) << key;
        section.append(key).append(L" = ").append(value).append(L"\n");
    }
    return section;
}

void UseProfile(const std::wstring& path, const std::wstring& text)
{
    const std::vector<unsigned char> bytes = Utf8(text);
    std::ofstream file(path.c_str(), std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.flush()) << testing::PrintToString(path);
    SetEnvironmentVariableW(handheld::profileVariable, path.c_str());
}

void UseSessionProfile()
{
    SetEnvironmentVariableW(handheld::profileVariable, nullptr);
}
