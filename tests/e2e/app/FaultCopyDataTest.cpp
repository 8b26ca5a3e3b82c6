// Records from other programs: whatever they hold, the running program takes them and goes on.
#include "tests/e2e/HandOver.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class FaultCopyDataTest : public ShellSession
{
  protected:
    LRESULT Hand(ULONG_PTR kind, const std::vector<unsigned char>& bytes) const
    {
        return HandOver(main, kind, bytes);
    }
    // A button that is up.
    static std::vector<unsigned char> Record(int press, int hold, unsigned char filling)
    {
        return ButtonRecord(193, press, hold, filling);
    }

    void ExpectGoesOn() const
    {
        EXPECT_FALSE(program->Dialog());
        EXPECT_FALSE(program->Notice());
        ExpectKeysReachThePage(TasksPage);
    }
};

TEST_F(FaultCopyDataTest, RecordsOfOtherKinds)
{
    for (ULONG_PTR kind : {ULONG_PTR{0}, ULONG_PTR{2}, ULONG_PTR{0x8064}, ~ULONG_PTR{0}}) {
        EXPECT_EQ(TRUE, Hand(kind, Record(4, 4, 0))) << kind;
    }
    ExpectGoesOn();
}

TEST_F(FaultCopyDataTest, RecordsOfOtherLengths)
{
    const std::vector<unsigned char> whole = Record(4, 4, 0);
    for (size_t size : {size_t{0}, size_t{1}, size_t{4}, size_t{12}, buttonRecordSize - 1}) {
        const std::vector<unsigned char> cut(whole.begin(), whole.begin() + static_cast<int>(size));
        EXPECT_EQ(TRUE, Hand(buttonRecord, cut)) << size;
    }
    for (size_t size : {buttonRecordSize + 1, 2 * buttonRecordSize, size_t{1000000}}) {
        std::vector<unsigned char> longer = whole;
        longer.resize(size);
        EXPECT_EQ(TRUE, Hand(buttonRecord, longer)) << size;
    }
    ExpectGoesOn();
}

TEST_F(FaultCopyDataTest, TextsWithoutAnEnd)
{
    // Actions that do nothing, with files that fill the record to its last byte.
    EXPECT_EQ(TRUE, Hand(buttonRecord, Record(1, 1, 'f')));
    EXPECT_EQ(TRUE, Hand(buttonRecord, Record(0, 0, 0xFF)));
    EXPECT_EQ(TRUE, Hand(buttonRecord, Record(1, 1, '%')));
    ExpectGoesOn();
}

TEST_F(FaultCopyDataTest, ActionsThatDoNotExist)
{
    for (int action : {13, 100, 0x7FFFFFFF, -1, INT_MIN}) {
        EXPECT_EQ(TRUE, Hand(buttonRecord, Record(action, action, 0))) << action;
    }
    ExpectGoesOn();
}

TEST_F(FaultCopyDataTest, AThousandOfThem)
{
    const std::vector<unsigned char> record = Record(1, 1, 'x');
    for (int i = 0; i < 1000; i++) {
        ASSERT_EQ(TRUE, Hand(buttonRecord, record)) << i;
    }
    ExpectGoesOn();
}

TEST_F(FaultCopyDataTest, WhileADialogIsOpen)
{
    const HWND dialog = OpenReport();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(TRUE, Hand(2, Record(4, 4, 0)));
    EXPECT_EQ(TRUE, Hand(buttonRecord, Record(1, 1, 'f')));
    EXPECT_TRUE(IsWindow(dialog));
    ASSERT_TRUE(InFront(dialog));
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(dialog); }));
    ExpectGoesOn();
}

TEST_F(FaultCopyDataTest, WhileTheMenuIsOpen)
{
    ASSERT_TRUE(PressMenuKey());
    EXPECT_EQ(TRUE, Hand(buttonRecord, Record(1, 1, 'f')));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitFor([] { return !OpenMenu(); }));
    ExpectGoesOn();
}
