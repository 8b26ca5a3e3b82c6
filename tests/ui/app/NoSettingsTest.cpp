// The program writes nothing unless it is told to: it opens no file but its pictures, and leaves the
// registry.
#include "framework/CVireoRegistry.h"
#include "resources/ids.h"
#include "tests/support/TestKey.h"
#include "tests/ui/ProgramTest.h"

#include <set>

class NoSettingsTest : public ProgramTest
{
  protected:
    std::set<std::wstring> opened; // by their names without folders
    std::vector<DWORD> dispositions;
    SPY(CreateFileW) open;
    SPY(RegCreateKeyExW) createKey;
    SPY(RegSetValueExW) setValue;

    NoSettingsTest()
    {
        open.instead = [this](const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                              DWORD disposition, DWORD flags, HANDLE other) {
            const std::wstring text = path;
            opened.insert(text.substr(text.find_last_of(L'\\') + 1));
            dispositions.push_back(disposition);
            return open.Real(path, access, share, security, disposition, flags, other);
        };
    }
};

TEST_F(NoSettingsTest, WritesWouldBeSeen)
{
    const TestKey key;
    CVireoRegistry registry;
    createKey.calls.clear(); // the test's own key
    ASSERT_TRUE(registry.Create(HKEY_CURRENT_USER, key.Below(L"new").c_str()));
    registry.WriteUint(L"value", 1);
    EXPECT_EQ(createKey.calls.size(), 1U);
    EXPECT_EQ(setValue.calls.size(), 1U);
}

TEST_F(NoSettingsTest, AWholeLifeWritesNothing)
{
    AddTask(L"Task");
    InProgram([](ProgramApp& app) {
        for (const UINT command : {CMD_SHOW_START, CMD_SHOW_SYSINFO, CMD_SHOW_PROCS, CMD_SHOW_TASKS,
                                   CMD_REFRESH, CMD_SETTINGS, CMD_HIDE}) {
            SendMessageW(app.MainWindow(), WM_COMMAND, command, 0);
        }
        for (const UINT command : {CMD_APPLICATION_INFO, CMD_WINDOWS_LIST}) {
            app.Later([&] { app.EndAllDialogs(); });
            SendMessageW(app.MainWindow(), WM_COMMAND, command, 0);
        }
    });
    EXPECT_EQ(opened, std::set<std::wstring>{L"Quorvane.zrs"});
    for (const DWORD disposition : dispositions) {
        EXPECT_EQ(disposition, static_cast<DWORD>(OPEN_EXISTING));
    }
    EXPECT_TRUE(createKey.calls.empty());
    EXPECT_TRUE(setValue.calls.empty());
}
