// Keys that belong to the shell: claiming a button anew, and the Home key.
#include "keys/ShellKeys.h"
#include "tests/support/Fatal.h"
#include "tests/support/ScriptedClaims.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

class ShellKeysTest : public testing::Test
{
  protected:
    ScriptedClaims claims;
    HWND window = reinterpret_cast<HWND>(0x7C0030);

    ShellKeysTest() { claims.expectedWindow = window; }
};

TEST_F(ShellKeysTest, AButtonIsDroppedByItsOwnerAndClaimedForNoWindow)
{
    ReclaimButton(193);
    EXPECT_EQ(claims.TakeCalls(),
              (Calls{"load coredll.dll", "find UnregisterFunc1", "drop 8 193", "claim 0 193 8 193", "free"}));
    ReclaimButton(0xFFFFFFFB); // of a command line with -5
    EXPECT_EQ(claims.TakeCalls(), (Calls{"load coredll.dll", "find UnregisterFunc1", "drop 8 4294967291",
                                         "claim 0 -5 8 4294967291", "free"}));
}

TEST_F(ShellKeysTest, TheHomeKeyIsDroppedByTheShellAndClaimedForTheWindow)
{
    CaptureHomeKey(window, L"any");
    EXPECT_EQ(claims.calls, (Calls{"load coredll.dll", "find UnregisterFunc1", "drop 8 91",
                                   "claim window 1 4104 91", "free"}));
}

TEST_F(ShellKeysTest, TheHomeKeyIsReleased)
{
    ReleaseHomeKey(window);
    EXPECT_EQ(claims.calls, Calls{"release window 1"});
}

TEST_F(ShellKeysTest, ASystemWithoutTheFunctionIsFatal)
{
    claims.hasFunction = false;
    EXPECT_FATAL(ReclaimButton(193), L"CDialogKeys::HandleCommand", L"Key_Err2");
    EXPECT_FATAL(CaptureHomeKey(window, L"CApp::OnCreate"), L"CApp::OnCreate", L"Can't handle key");
    EXPECT_FATAL(CaptureHomeKey(window, L"CDialogKeys_SP::HandleCommand"), L"CDialogKeys_SP::HandleCommand",
                 L"Can't handle key");
}

TEST_F(ShellKeysTest, ASystemWithoutTheLibraryIsFatal)
{
    claims.hasLibrary = false;
    EXPECT_FATAL(ReclaimButton(193), L"CDialogKeys::HandleCommand", L"Key_Err1");
    EXPECT_FATAL(CaptureHomeKey(window, L"CApp::OnCreate"), L"CApp::OnCreate", L"Can't handle key");
}
