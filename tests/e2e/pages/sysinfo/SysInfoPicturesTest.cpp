// Picture files without, or with broken, pictures of the gauges: only the picture is missing then.
// profiles: pocketpc pocketpc-vga smartphone
#include "rig/ProgramCopy.h"
#include "tests/e2e/PictureFile.h"
#include "tests/e2e/pages/sysinfo/GaugeSession.h"

using namespace rig;

static constexpr uint32_t storage = 0, memory = 2, card = 4, battery = 6; // a picture's mask is the next one
static constexpr uint32_t nowhere = 999;

class SysInfoPicturesTest : public GaugeSession
{
  protected:
    ProgramCopy copy;

    void SetUp() override
    {
        ASSERT_TRUE(copy.Complete());
        MakeCard(L"Card");
    }

    // Before its folder.
    void TearDown() override
    {
        program.reset();
        GaugeSession::TearDown();
    }

    std::wstring File() const { return copy.Path(L"Quorvane.zrs"); }

    // The program's id of a picture, or with the other set of this screen's size; both sets have 8.
    static uint32_t Id(uint32_t picture, bool otherSet = false)
    {
        return picture + ((GaugeLook::Side() == 48) != otherSet ? 8 : 0);
    }

    static PictureEntry EntryOf(const Bytes& file, uint32_t id)
    {
        PictureEntry entry = {};
        EXPECT_TRUE(ReadPictureEntry(file, id, entry)) << id;
        return entry;
    }

    static void Remove(Bytes& file, uint32_t id)
    {
        const PictureEntry entry = EntryOf(file, id);
        EXPECT_TRUE(ChangePictureEntry(file, id, {nowhere, entry.offset, entry.size}));
    }

    // Its data are those of another picture then.
    static void Replace(Bytes& file, uint32_t id, uint32_t by)
    {
        const PictureEntry entry = EntryOf(file, by);
        EXPECT_TRUE(ChangePictureEntry(file, id, {id, entry.offset, entry.size}));
    }

    static void Break(Bytes& file, uint32_t id)
    {
        const PictureEntry entry = EntryOf(file, id);
        ASSERT_LE(entry.offset + entry.size, file.size());
        std::fill_n(file.begin() + entry.offset, entry.size, static_cast<unsigned char>(0x55));
    }

    // The page with this file: memory, storage, a card and the battery, as they always are but for the
    // pictures.
    void ShowPage(const Bytes& file)
    {
        ASSERT_TRUE(WriteBytes(File(), file));
        Show(L"Card", std::wstring(plainFigures) + L"[storage]\n\\Card = 300, 200\n", copy.Folder());
        ASSERT_FALSE(HasFatalFailure());
        ASSERT_TRUE(HasRows(4));
        ExpectGauge(0, plainMemory);
        ExpectGauge(1, plainStorage);
        ExpectGauge(2, {L"Card", 33, L"100 B", L"200 B "});
        ExpectGauge(3, plainBattery);
    }

    void ExpectPicture(int row, bool there) const
    {
        ASSERT_NO_FATAL_FAILURE(Reach(row));
        const Picture picture = PictureOf(row);
        if (there) {
            EXPECT_GT(picture.Colours(), 8) << row;
        } else {
            EXPECT_EQ(picture.Width() * picture.Height(), picture.Count(GetSysColor(COLOR_WINDOW))) << row;
        }
    }
};

TEST_F(SysInfoPicturesTest, WithoutAnyPictureTheGaugesAreThere)
{
    ASSERT_NO_FATAL_FAILURE(ShowPage(PictureFileHead(0)));
    for (int row : {0, 1, 2, 3}) {
        ExpectPicture(row, false);
    }
}

TEST_F(SysInfoPicturesTest, AMissingPictureOrMaskCostsThisPictureOnly)
{
    Bytes file = ReadBytes(File());
    Remove(file, Id(memory));
    Remove(file, Id(card + 1));
    ASSERT_NO_FATAL_FAILURE(ShowPage(file));
    ExpectPicture(0, false);
    ExpectPicture(1, true);
    ExpectPicture(2, false);
    ExpectPicture(3, true);
}

TEST_F(SysInfoPicturesTest, ABrokenPictureOrMaskCostsThisPictureOnly)
{
    Bytes file = ReadBytes(File());
    ASSERT_NO_FATAL_FAILURE(Break(file, Id(storage)));
    ASSERT_NO_FATAL_FAILURE(Break(file, Id(battery + 1)));
    ASSERT_NO_FATAL_FAILURE(ShowPage(file));
    ExpectPicture(0, true);
    ExpectPicture(1, false);
    ExpectPicture(2, true);
    ExpectPicture(3, false);
}

TEST_F(SysInfoPicturesTest, APictureOrMaskOfTheOtherSizeCostsThisPictureOnly)
{
    Bytes file = ReadBytes(File());
    Replace(file, Id(memory + 1), Id(memory + 1, true));
    Replace(file, Id(card), Id(card, true));
    ASSERT_NO_FATAL_FAILURE(ShowPage(file));
    ExpectPicture(0, false);
    ExpectPicture(1, true);
    ExpectPicture(2, false);
    ExpectPicture(3, true);
}
