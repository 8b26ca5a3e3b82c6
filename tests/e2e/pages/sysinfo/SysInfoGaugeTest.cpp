// The gauges on the screen: titles, bars, amounts and pictures.
// profiles: pocketpc pocketpc-vga smartphone
// device's executable: pocketpc-vga
#include "rig/Controls.h"
#include "tests/e2e/pages/sysinfo/GaugeSession.h"

using namespace rig;

class SysInfoGaugeTest : public GaugeSession
{
  protected:
    // The gauge of the battery alone, below memory and storage.
    void ExpectBattery(const std::wstring& section, const Gauge& gauge)
    {
        Show(L"", L"[battery]\n" + section);
        ASSERT_FALSE(HasFatalFailure());
        ASSERT_TRUE(HasRows(3));
        ExpectGauge(2, gauge);
    }
};

TEST_F(SysInfoGaugeTest, TheBarsAreFilledAsFarAsTheAmountsAreUsed)
{
    for (const wchar_t* card : {L"Blank", L"Third", L"Full", L"Nothing", L"Beyond"}) {
        MakeCard(card);
    }
    Show(L"Blank, Third, Full, Nothing, Beyond", std::wstring(plainFigures) +
                                                     L"[storage]\n"
                                                     L"\\Blank = 104857600, 104857600\n"
                                                     L"\\Third = 314572800, 209715200\n"
                                                     L"\\Full = 5905580032, 0\n"
                                                     L"\\Nothing = 0, 0\n"
                                                     L"\\Beyond = 1024, 3072\n");
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(8));
    ExpectGauge(0, plainMemory);
    ExpectGauge(1, plainStorage);
    ExpectGauge(2, {L"Blank", 0, L"0 B", L"100 MB "});
    ExpectGauge(3, {L"Third", 33, L"100 MB", L"200 MB "});
    ExpectGauge(4, {L"Full", 100, L"5.50 GB", L"0 B "});
    ExpectGauge(5, {L"Nothing", 0, L"0 B", L"0 B "});
    // More free than there is at all: as full as can be.
    ExpectGauge(6, {L"Beyond", 1000, L"-2048 B", L"3 KB "});
    ExpectGauge(7, plainBattery);
}

TEST_F(SysInfoGaugeTest, AnUnknownChargeRunsPastTheBar)
{
    ExpectBattery(L"percent = 255\nac = 0\n", {L"Battery", 255, L"255%", L""});
}

TEST_F(SysInfoGaugeTest, OnlyABatteryOnMainsIsCharging)
{
    ExpectBattery(L"percent = 100\nac = 1\n", {L"Battery", 100, L"100%", L"Charging "});
    ExpectBattery(L"percent = 0\nac = 2\n", {L"Battery", 0, L"0%", L""});
    ExpectBattery(L"percent = 55\nac = 255\n", {L"Battery", 55, L"55%", L""});
}

TEST_F(SysInfoGaugeTest, LongNamesAreCut)
{
    const wchar_t name[] = L"A storage card whose name is by far too long for any handheld";
    MakeCard(name);
    Show(name, std::wstring(plainFigures) + L"[storage]\n\\" + name + L" = 1099511627776, 1098437885952\n");
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(4));
    ExpectGauge(2, {name, 0, L"1 GB", L"1023 GB "});
}

TEST_F(SysInfoGaugeTest, EachKindHasAPictureOfItsOwnWithoutAGround)
{
    MakeCard(L"One");
    MakeCard(L"Two");
    Show(L"One, Two", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(5));
    std::vector<Picture> pictures;
    for (int row = 0; row < 5; row++) {
        ASSERT_NO_FATAL_FAILURE(Reach(row));
        const RECT place = ListRowOnScreen(list, row).value_or(RECT{});
        EXPECT_EQ(look.RowHeight(), place.bottom - place.top) << row;
        pictures.push_back(PictureOf(row));
        EXPECT_GT(pictures[row].Colours(), 8) << row;
        const int last = GaugeLook::Side() - 1;
        for (const POINT corner : {POINT{0, 0}, POINT{last, 0}, POINT{0, last}, POINT{last, last}}) {
            EXPECT_EQ(GetSysColor(COLOR_WINDOW), pictures[row].At(corner.x, corner.y)) << row;
        }
    }
    EXPECT_TRUE(pictures[2] == pictures[3]) << "the cards differ";
    const int kinds[] = {0, 1, 2, 4};
    for (int one : kinds) {
        for (int other : kinds) {
            EXPECT_EQ(one == other, pictures[one] == pictures[other]) << one << ", " << other;
        }
    }
}
