// What a device with a profile tells of its batteries, on PCs with and without one.
#include "platform/pc/common/PowerFigures.h"

#include <gtest/gtest.h>

using handheld::BatteryScript;
using handheld::TellPower;

static constexpr DWORD unknownTime = 0xFFFFFFFF;

static SYSTEM_POWER_STATUS Notebook()
{
    SYSTEM_POWER_STATUS real = {};
    real.ACLineStatus = 0;
    real.BatteryFlag = 1;
    real.BatteryLifePercent = 43;
    real.BatteryLifeTime = 5000;
    real.BatteryFullLifeTime = 12000;
    return real;
}

// flag: how the system says that there is none.
static SYSTEM_POWER_STATUS Desktop(BYTE flag)
{
    SYSTEM_POWER_STATUS real = {};
    real.ACLineStatus = 1;
    real.BatteryFlag = flag;
    real.BatteryLifePercent = 255;
    real.BatteryLifeTime = unknownTime;
    real.BatteryFullLifeTime = unknownTime;
    return real;
}

static BatteryScript Scripted()
{
    BatteryScript script;
    script.percent = 76;
    script.lineStatus = 2;
    script.life = 100;
    script.fullLife = 200;
    script.backupPercent = 99;
    return script;
}

static void ExpectScripted(const SYSTEM_POWER_STATUS_EX& status)
{
    EXPECT_EQ(status.BatteryLifePercent, 76);
    EXPECT_EQ(status.ACLineStatus, 2);
    EXPECT_EQ(status.BatteryLifeTime, 100u);
    EXPECT_EQ(status.BatteryFullLifeTime, 200u);
    EXPECT_EQ(status.BackupBatteryLifePercent, 99);
}

TEST(PowerFiguresTest, WithoutAScriptTheBatteryIsThePcsAndTheBackupUnknown)
{
    const SYSTEM_POWER_STATUS real = Notebook();
    SYSTEM_POWER_STATUS_EX status = {};
    ASSERT_TRUE(TellPower({}, &real, status));
    EXPECT_EQ(status.ACLineStatus, 0);
    EXPECT_EQ(status.BatteryFlag, 1);
    EXPECT_EQ(status.BatteryLifePercent, 43);
    EXPECT_EQ(status.BatteryLifeTime, 5000u);
    EXPECT_EQ(status.BatteryFullLifeTime, 12000u);
    EXPECT_EQ(status.BackupBatteryLifePercent, 255);
    EXPECT_EQ(status.BackupBatteryFlag, 255);
    EXPECT_EQ(status.BackupBatteryLifeTime, unknownTime);
    EXPECT_EQ(status.BackupBatteryFullLifeTime, unknownTime);
}

TEST(PowerFiguresTest, AScriptStandsBeforeThePcsBattery)
{
    const SYSTEM_POWER_STATUS real = Notebook();
    SYSTEM_POWER_STATUS_EX status = {};
    ASSERT_TRUE(TellPower(Scripted(), &real, status));
    ExpectScripted(status);
}

TEST(PowerFiguresTest, AFigureThatIsNotScriptedIsThePcs)
{
    BatteryScript script;
    script.percent = 255;
    const SYSTEM_POWER_STATUS real = Notebook();
    SYSTEM_POWER_STATUS_EX status = {};
    ASSERT_TRUE(TellPower(script, &real, status));
    EXPECT_EQ(status.BatteryLifePercent, 255);
    EXPECT_EQ(status.BatteryLifeTime, 5000u);
}

TEST(PowerFiguresTest, AScriptForAMissingBatteryLeavesARealOneAlone)
{
    BatteryScript script = Scripted();
    script.onlyWhenMissing = true;
    const SYSTEM_POWER_STATUS real = Notebook();
    SYSTEM_POWER_STATUS_EX status = {};
    ASSERT_TRUE(TellPower(script, &real, status));
    EXPECT_EQ(status.BatteryLifePercent, 43);
    EXPECT_EQ(status.BackupBatteryLifePercent, 255);
}

TEST(PowerFiguresTest, AScriptForAMissingBatteryIsUsedWhereThereIsNone)
{
    BatteryScript script = Scripted();
    script.onlyWhenMissing = true;
    for (const BYTE flag : {BYTE{128}, BYTE{255}}) {
        const SYSTEM_POWER_STATUS real = Desktop(flag);
        SYSTEM_POWER_STATUS_EX status = {};
        ASSERT_TRUE(TellPower(script, &real, status)) << +flag;
        ExpectScripted(status);
    }
    SYSTEM_POWER_STATUS_EX status = {};
    ASSERT_TRUE(TellPower(script, nullptr, status));
    ExpectScripted(status);
}

TEST(PowerFiguresTest, NoBatteryLeavesTheRecordAlone)
{
    const SYSTEM_POWER_STATUS real = Notebook();
    BatteryScript none;
    none.present = false;
    SYSTEM_POWER_STATUS_EX status = {};
    status.BatteryLifePercent = 12;
    EXPECT_FALSE(TellPower(none, &real, status));
    EXPECT_FALSE(TellPower({}, nullptr, status));
    EXPECT_EQ(status.BatteryLifePercent, 12);
}
