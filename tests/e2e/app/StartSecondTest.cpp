// A second start: what it hands to the running program, and that it ends without a window.
// A window of the program's class and title, made here, receives what the running program would.
#include "tests/e2e/ShellSession.h"
#include "tests/e2e/app/RunningStandIn.h"

using namespace rig;

namespace {

// What a button's command line stands for.
struct Handed
{
    int32_t key;
    int32_t press;
    int32_t hold;
    std::wstring pressFile;
    std::wstring holdFile;
};

} // namespace

static int32_t NumberAt(const std::vector<std::byte>& record, size_t offset)
{
    int32_t number = 0;
    memcpy(&number, record.data() + offset, sizeof(number));
    return number;
}

static std::wstring TextAt(const std::vector<std::byte>& record, size_t offset)
{
    wchar_t text[256];
    memcpy(text, record.data() + offset, sizeof(text));
    EXPECT_NE(std::end(text), std::find(std::begin(text), std::end(text), L'\0')) << "not terminated";
    text[255] = L'\0';
    return text;
}

class StartSecondTest : public testing::Test
{
  protected:
    RunningStandIn running;

    void SetUp() override
    {
        ASSERT_TRUE(WaitFor([&] {
            return FindTopWindow({.className = L"QuorvaneApp", .visible = false}) == running.Window();
        })) << "a program is running";
    }

    // Runs it to its end; it must not show or make a window of its own.
    void StartWith(const std::wstring& arguments)
    {
        const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", arguments);
        const auto ended = [&] {
            EXPECT_FALSE(
                FindTopWindow({.className = L"QuorvaneApp", .process = second.Id(), .visible = false}));
            return second.ExitCode().has_value();
        };
        ASSERT_TRUE(WaitFor(ended)) << "it does not end";
        EXPECT_EQ(0u, second.ExitCode());
    }

    void ExpectHanded(const std::wstring& arguments, const Handed& expected)
    {
        SCOPED_TRACE(testing::PrintToString(arguments));
        running.Forget();
        ASSERT_NO_FATAL_FAILURE(StartWith(arguments));
        ASSERT_EQ(1u, running.Records().size());
        const RunningStandIn::Record& record = running.Records()[0];
        EXPECT_EQ(1u, record.kind);
        ASSERT_EQ(1036u, record.bytes.size());
        EXPECT_EQ(expected.key, NumberAt(record.bytes, 0));
        EXPECT_EQ(expected.press, NumberAt(record.bytes, 4));
        EXPECT_EQ(expected.hold, NumberAt(record.bytes, 8));
        EXPECT_EQ(expected.pressFile, TextAt(record.bytes, 12));
        EXPECT_EQ(expected.holdFile, TextAt(record.bytes, 524));
    }

    void ExpectNormalStart(const std::wstring& arguments)
    {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
        ASSERT_TRUE(BringToFront(home));
        running.Forget();
        ASSERT_NO_FATAL_FAILURE(StartWith(arguments));
        EXPECT_TRUE(running.Records().empty());
        EXPECT_TRUE(WaitFor([&] { return GetForegroundWindow() == running.Window(); }))
            << "the running program was not brought forward";
    }
};

TEST_F(StartSecondTest, AButtonsActionsAreHandedOver)
{
    ExpectHanded(L"193 3*9", {193, 3, 9, L"", L""});
    ExpectHanded(L"198 12*7", {198, 12, 7, L"", L""});
    ExpectHanded(L"  193 3*9  ", {193, 3, 9, L"", L""});
}

TEST_F(StartSecondTest, MissingActionsAreTheOneThatDoesNothing)
{
    ExpectHanded(L"193 *", {193, 1, 1, L"", L""});
    ExpectHanded(L"193 5*", {193, 5, 1, L"", L""});
    ExpectHanded(L"193 *6", {193, 1, 6, L"", L""});
}

TEST_F(StartSecondTest, FilesAreHandedOver)
{
    ExpectHanded(L"193 \\Windows\\Start Menu\\Calc.lnk*12",
                 {193, 2, 12, L"\\Windows\\Start Menu\\Calc.lnk", L""});
    ExpectHanded(L"193 3*\\My Documents\\a b.txt", {193, 3, 2, L"", L"\\My Documents\\a b.txt"});
    ExpectHanded(L"193 \\a*\\b", {193, 2, 2, L"\\a", L"\\b"});
    ExpectHanded(L"193 3*9*8", {193, 3, 2, L"", L"9*8"});
    ExpectHanded(L"193 3x*-4", {193, 2, 2, L"3x", L"-4"});
}

TEST_F(StartSecondTest, FilesAreCutToWhatTheRecordHolds)
{
    const std::wstring fits(255, L'f');
    ExpectHanded(L"193 " + fits + L"*3", {193, 2, 3, fits, L""});
    ExpectHanded(L"193 " + fits + L"xyz*" + fits + L"z", {193, 2, 2, fits, fits});
    const std::wstring longest(5000, L'f');
    ExpectHanded(L"193 3*" + longest, {193, 3, 2, L"", longest.substr(0, 255)});
}

TEST_F(StartSecondTest, ItDoesNotComeForwardForAButton)
{
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(BringToFront(home));
    ExpectHanded(L"193 3*9", {193, 3, 9, L"", L""});
    EXPECT_EQ(home, GetForegroundWindow());
}

TEST_F(StartSecondTest, WithoutACommandLineTheRunningProgramComesForward)
{
    ExpectNormalStart(L"");
}

TEST_F(StartSecondTest, AMalformedCommandLineIsANormalStart)
{
    for (const wchar_t* line :
         {L"193", L"193 3", L"193*3", L"*", L"3*9", L"x 3*9", L"0 3*9", L"*1 2", L" * *"}) {
        ExpectNormalStart(line);
    }
}

TEST_F(StartSecondTest, AHostileCommandLineIsANormalStart)
{
    ExpectNormalStart(std::wstring(8000, L'*'));
    ExpectNormalStart(std::wstring(8000, L'9'));
    ExpectNormalStart(L"%s%n%s %d*%p");
}
