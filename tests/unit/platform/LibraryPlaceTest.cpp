// Where the coredll substitute looks for a library.
#include "platform/ce.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

static std::vector<std::wstring> asked;

static HMODULE WINAPI LoadNothing(const wchar_t* name)
{
    asked.emplace_back(name);
    return nullptr;
}

class LibraryPlaceTest : public testing::Test
{
  protected:
    static std::vector<std::wstring> AskedFor(const wchar_t* name)
    {
        const ImportHook hook(GetModuleHandleW(L"coredll.dll"), "LoadLibraryW", LoadNothing);
        asked.clear();
        EXPECT_EQ(LoadLibraryW(name), nullptr);
        return asked;
    }

    // Of a file beside the substitute.
    static std::wstring Beside(const std::wstring& name)
    {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(GetModuleHandleW(L"coredll.dll"), path, MAX_PATH);
        const std::wstring file = path;
        return file.substr(0, file.rfind(L'\\') + 1) + name;
    }
};

TEST_F(LibraryPlaceTest, ANameIsLookedForBesideTheSubstituteFirst)
{
    EXPECT_EQ(AskedFor(L"some.dll"), (std::vector<std::wstring>{Beside(L"some.dll"), L"some.dll"}));
}

TEST_F(LibraryPlaceTest, APathIsTakenAsItIs)
{
    EXPECT_EQ(AskedFor(L"\\folder\\some.dll"), std::vector<std::wstring>{L"\\folder\\some.dll"});
    const std::wstring longName(MAX_PATH, L'n');
    EXPECT_EQ(AskedFor(longName.c_str()), std::vector<std::wstring>{longName})
        << "beside it there is no room";
}
