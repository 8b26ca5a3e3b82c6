// CGaugePictures: which pictures are decoded, when, and what is drawn of them.
#include "pages/sysinfo/CGaugePictures.h"
#include "tests/support/ImportHook.h"
#include "tests/support/ObjectCounts.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/framework/ContainerBytes.h"
#include "tests/unit/framework/FakeImaging.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

// A copy of a bitmap: whose it was and how. Each picture's first column has its id for a colour.
struct Copied
{
    uint32_t id;
    RECT place; // left, top, width, height
    DWORD operation;
    bool operator==(const Copied& other) const
    {
        return id == other.id && EqualRect(&place, &other.place) && operation == other.operation;
    }
};
using Copies = std::vector<Copied>;

static void PrintTo(const Copied& copy, std::ostream* out)
{
    *out << copy.id << " at " << copy.place.left << ',' << copy.place.top << " of " << copy.place.right << 'x'
         << copy.place.bottom << " by " << copy.operation;
}

static Copies copies;

static BOOL WINAPI RecordCopy(HDC, int x, int y, int width, int height, HDC source, int fromX, int fromY,
                              DWORD operation)
{
    EXPECT_EQ(fromX, 0);
    EXPECT_EQ(fromY, 0);
    copies.push_back({GetPixel(source, 0, 0), {x, y, width, height}, operation});
    return TRUE;
}

class GaugePicturesTest : public testing::Test
{
  protected:
    TempFolder folder;
    FakeImaging imaging;
    const ImportHook factory{"CoCreateInstance", CreateFakeFactory};
    CResources* container = nullptr;
    std::unique_ptr<CGaugePictures> pictures;
    std::set<uint32_t> missing; // ids that the container lacks
    std::set<uint32_t> broken;  // ids whose data are no picture
    std::set<uint32_t> small;   // ids whose picture is a pixel narrower
    std::set<uint32_t> low;     // ids whose picture is a pixel lower
    std::vector<uint32_t> decoded;
    HDC memory = CreateCompatibleDC(nullptr);

    GaugePicturesTest()
    {
        copies.clear();
        imaging.decoding = [this] {
            const uint32_t id = static_cast<unsigned char>(imaging.bufferRead.at(0));
            decoded.push_back(id);
            imaging.createImage = broken.count(id) ? E_FAIL : S_OK;
            const UINT side = id < 8 ? 32 : 48;
            imaging.width = side - static_cast<UINT>(small.count(id));
            imaging.height = side - static_cast<UINT>(low.count(id));
            imaging.colour = id;
        };
    }

    ~GaugePicturesTest() override
    {
        pictures.reset();
        CResources::Close(container);
        DeleteDC(memory);
    }

    void Load(int side)
    {
        std::vector<EntryBytes> entries;
        for (uint32_t id = 0; id < 16; id++) {
            if (!missing.count(id)) {
                entries.push_back({id, {static_cast<unsigned char>(id)}});
            }
        }
        pictures.reset();
        CResources::Close(container);
        container = CResources::Open(folder.WriteFile(L"pictures.zrs", ContainerBytes(entries)).c_str());
        ASSERT_NE(container, nullptr);
        pictures = std::make_unique<CGaugePictures>(*container);
        decoded.clear();
        pictures->Load(side);
    }

    // The copies that drawing a kind makes.
    Copies Drawn(uint32_t kind)
    {
        const ImportHook hook("BitBlt", RecordCopy);
        copies.clear();
        const HGDIOBJ before = GetCurrentObject(memory, OBJ_BITMAP);
        pictures->Draw(nullptr, 7, -5, kind, memory);
        EXPECT_EQ(GetCurrentObject(memory, OBJ_BITMAP), before) << kind;
        return copies;
    }

    static Copies Pair(uint32_t picture, uint32_t mask, LONG side)
    {
        const RECT place = {7, -5, side, side};
        return {{picture, place, SRCINVERT}, {mask, place, SRCAND}, {picture, place, SRCINVERT}};
    }

    // All kinds of the small set are drawn but this one; 4: all are.
    void ExpectAllBut(uint32_t lost)
    {
        static const uint32_t ids[] = {2, 0, 4, 6};
        Load(32);
        for (uint32_t kind = 0; kind < 4; kind++) {
            EXPECT_EQ(Drawn(kind), kind == lost ? Copies{} : Pair(ids[kind], ids[kind] + 1, 32))
                << kind << " without " << lost;
        }
    }
};

TEST_F(GaugePicturesTest, EachKindHasItsPictureAndMask)
{
    Load(32);
    EXPECT_EQ(Drawn(0), Pair(2, 3, 32));
    EXPECT_EQ(Drawn(1), Pair(0, 1, 32));
    EXPECT_EQ(Drawn(2), Pair(4, 5, 32));
    EXPECT_EQ(Drawn(3), Pair(6, 7, 32));
    Load(48);
    EXPECT_EQ(Drawn(0), Pair(10, 11, 48));
    EXPECT_EQ(Drawn(1), Pair(8, 9, 48));
    EXPECT_EQ(Drawn(2), Pair(12, 13, 48));
    EXPECT_EQ(Drawn(3), Pair(14, 15, 48));
}

TEST_F(GaugePicturesTest, TheIdsOfThePictures)
{
    EXPECT_EQ(GaugePictureId(MainMemory, 32), 2u);
    EXPECT_EQ(GaugePictureId(InternalStorage, 32), 0u);
    EXPECT_EQ(GaugePictureId(StorageCard, 32), 4u);
    EXPECT_EQ(GaugePictureId(MainBattery, 32), 6u);
    EXPECT_EQ(GaugePictureId(MainMemory, 48), 10u);
    EXPECT_EQ(GaugePictureId(InternalStorage, 48), 8u);
    EXPECT_EQ(GaugePictureId(StorageCard, 48), 12u);
    EXPECT_EQ(GaugePictureId(MainBattery, 48), 14u);
}

TEST_F(GaugePicturesTest, OnlyOneSetIsDecodedAndOnlyOnce)
{
    Load(32);
    const std::set<uint32_t> smallSet = {0, 1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(std::set<uint32_t>(decoded.begin(), decoded.end()), smallSet);
    EXPECT_EQ(decoded.size(), 8u);
    pictures->Load(32);
    pictures->Load(48);
    Drawn(0);
    EXPECT_EQ(decoded.size(), 8u);
    EXPECT_EQ(imaging.images, 0) << "the images are freed, their bitmaps are kept";
    Load(48);
    const std::set<uint32_t> largeSet = {8, 9, 10, 11, 12, 13, 14, 15};
    EXPECT_EQ(std::set<uint32_t>(decoded.begin(), decoded.end()), largeSet);
    EXPECT_EQ(decoded.size(), 8u);
}

TEST_F(GaugePicturesTest, NothingIsDrawnBeforeTheyAreLoaded)
{
    Load(32);
    pictures = std::make_unique<CGaugePictures>(*container);
    decoded.clear();
    for (uint32_t kind = 0; kind < 5; kind++) {
        EXPECT_EQ(Drawn(kind), Copies{});
    }
    EXPECT_TRUE(decoded.empty());
}

TEST_F(GaugePicturesTest, OtherKindsHaveNoPicture)
{
    Load(32);
    for (const uint32_t kind : {4u, 5u, 9u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        EXPECT_EQ(Drawn(kind), Copies{}) << kind;
    }
}

// Kind 1 has the ids 0 and 1, and kind 3 the last two.
TEST_F(GaugePicturesTest, AMissingPictureOrMaskCostsItsKindAlone)
{
    for (const auto& [id, kind] : {std::pair{0u, 1u}, {1u, 1u}, {2u, 0u}, {5u, 2u}, {6u, 3u}, {7u, 3u}}) {
        missing = {id};
        ExpectAllBut(kind);
    }
}

TEST_F(GaugePicturesTest, ABrokenPictureOrMaskCostsItsKindAlone)
{
    for (const auto& [id, kind] : {std::pair{0u, 1u}, {1u, 1u}, {2u, 0u}, {5u, 2u}, {6u, 3u}, {7u, 3u}}) {
        broken = {id};
        ExpectAllBut(kind);
    }
}

TEST_F(GaugePicturesTest, APictureOrMaskOfAnotherSizeCostsItsKindAlone)
{
    for (const auto& [id, kind] : {std::pair{0u, 1u}, {1u, 1u}, {2u, 0u}, {5u, 2u}, {6u, 3u}, {7u, 3u}}) {
        small = {id};
        low.clear();
        ExpectAllBut(kind);
        small.clear();
        low = {id};
        ExpectAllBut(kind);
    }
}

TEST_F(GaugePicturesTest, APairOfOneOtherSizeIsNotDrawnEither)
{
    small = {4, 5};
    ExpectAllBut(2);
}

TEST_F(GaugePicturesTest, WithoutAnyPictureNothingIsDrawn)
{
    for (uint32_t id = 0; id < 16; id++) {
        missing.insert(id);
    }
    Load(32);
    for (uint32_t kind = 0; kind < 4; kind++) {
        EXPECT_EQ(Drawn(kind), Copies{});
    }
}

TEST_F(GaugePicturesTest, EveryBitmapIsDeletedAtTheEnd)
{
    Load(32);
    pictures.reset();
    const ObjectCounts before = ObjectCounts::Now();
    for (const uint32_t lost : {99u, 0u, 1u, 6u}) {
        missing = {lost};
        Load(48);
        EXPECT_FALSE(ObjectCounts::Now().SameObjects(before));
        Load(32);
        pictures.reset();
        EXPECT_TRUE(ObjectCounts::Now().SameObjects(before)) << lost;
    }
}

TEST_F(GaugePicturesTest, APairThatLacksOneKeepsNoneOfIt)
{
    const auto bitmaps = [&] {
        const ObjectCounts all = ObjectCounts::Now();
        pictures.reset();
        const ObjectCounts none = ObjectCounts::Now();
        int count = 0;
        for (size_t type = 0; type < all.gdiObjects.size(); type++) {
            count += all.gdiObjects[type] - none.gdiObjects[type];
        }
        return count;
    };
    Load(32);
    EXPECT_EQ(bitmaps(), 8);
    missing = {1, 2};
    Load(32);
    EXPECT_EQ(bitmaps(), 4);
}
