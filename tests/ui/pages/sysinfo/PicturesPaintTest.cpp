// The pictures of the system information page: when they are decoded, where they are drawn, and what a spoilt
// container costs.
// profiles: pocketpc pocketpc-vga
#include "tests/support/TempFolder.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/pages/sysinfo/GaugePainting.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

class PicturesPaintTest : public GaugePainting
{
  protected:
    using Bytes = std::vector<unsigned char>;
    static constexpr size_t countOffset = 23;
    static constexpr size_t directoryOffset = 27;
    static constexpr size_t recordSize = 20;

    TempFolder folder;
    std::wstring container; // the program opens this one in place of its own

    // Four rows, one of each kind; the rows' numbers are their kinds.
    PicturesPaintTest() { device.AddCard(L"Card", 4096, 1024); }

    static uint32_t Word(const Bytes& bytes, size_t offset)
    {
        uint32_t word = 0;
        memcpy(&word, bytes.data() + offset, sizeof word);
        return word;
    }

    static void SetWord(Bytes& bytes, size_t offset, uint32_t word)
    {
        memcpy(bytes.data() + offset, &word, sizeof word);
    }

    // The program's container.
    static Bytes Container()
    {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring exe = path;
        const std::wstring whole = exe.substr(0, exe.find_last_of(L'\\')) + L"\\Quorvane.zrs";
        FILE* const file = _wfopen(whole.c_str(), L"rb");
        EXPECT_NE(file, nullptr);
        Bytes bytes(1 << 20);
        bytes.resize(fread(bytes.data(), 1, bytes.size(), file));
        fclose(file);
        return bytes;
    }

    // Where the directory has the record of that id.
    static size_t RecordOf(const Bytes& bytes, uint32_t id)
    {
        size_t offset = directoryOffset;
        while (Word(bytes, offset) != id) {
            offset += recordSize;
        }
        return offset;
    }

    static void Remove(Bytes& bytes, uint32_t id) { SetWord(bytes, RecordOf(bytes, id), 1000 + id); }

    static void Spoil(Bytes& bytes, uint32_t id)
    {
        const size_t record = RecordOf(bytes, id);
        memset(bytes.data() + Word(bytes, record + 4), 0, Word(bytes, record + 8));
    }

    // The id's data are those of another one from now on.
    static void Replace(Bytes& bytes, uint32_t id, uint32_t other)
    {
        memcpy(bytes.data() + RecordOf(bytes, id) + 4, bytes.data() + RecordOf(bytes, other) + 4, 8);
    }

    void OnPageOf(const Bytes& bytes, const std::function<void(ProgramApp&)>& test)
    {
        container = folder.WriteFile(L"pictures.zrs", bytes);
        const SPY(CreateFileW)
            open([&](const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                     DWORD disposition, DWORD flags, HANDLE other) {
                const bool own = std::wstring(path).ends_with(L"\\Quorvane.zrs");
                return open.Real(own ? container.c_str() : path, access, share, security, disposition, flags,
                                 other);
            });
        OnPage(test);
    }

    RECT Place(ProgramApp& app) const
    {
        return {row.left + X(4), row.top + (61 - Side(app)) / 2, Side(app), Side(app)};
    }

    // The row's kind has no picture: nothing is drawn in its place, and all else is.
    void ExpectNoPicture(ProgramApp& app, uint32_t kind)
    {
        const DrawnRow drawn = Draw(app, kind, 0, [&](HDC target) {
            const Pixels pixels(target, canvasWidth, canvasHeight);
            const RECT left = {row.left, row.top, row.left + X(8) + Side(app), row.bottom};
            EXPECT_EQ(pixels.Count(left, ground), (left.right - left.left) * (left.bottom - left.top));
        });
        EXPECT_EQ(drawn.copies.size(), 0u) << kind;
        EXPECT_EQ(drawn.texts.size(), 3u) << kind;
        EXPECT_EQ(drawn.outlines.size(), 1u) << kind;
    }

    void ExpectPicture(ProgramApp& app, uint32_t kind)
    {
        EXPECT_EQ(Draw(app, kind).copies.size(), 3u) << kind;
    }

    // The set's eight ids in the small set's numbers, and the kind that each belongs to.
    static constexpr uint32_t kindOfId[] = {1, 1, 0, 0, 2, 2, 3, 3};

    // Each spoilt picture or mask costs its own kind's picture.
    void ExpectOnlyItsKindLost(const std::function<void(Bytes&, uint32_t)>& spoil)
    {
        for (uint32_t small = 0; small < 8; small++) {
            Bytes bytes = Container();
            spoil(bytes, small);
            spoil(bytes, small + 8);
            OnPageOf(bytes, [&](ProgramApp& app) {
                for (uint32_t kind = 0; kind < 4; kind++) {
                    if (kind == kindOfId[small]) {
                        ExpectNoPicture(app, kind);
                    } else {
                        ExpectPicture(app, kind);
                    }
                }
            });
        }
    }
};

TEST_F(PicturesPaintTest, TheyAreDecodedWhenThePageIsFirstShownAndOnlyThen)
{
    const SPY(CreateDIBSection) bitmaps;
    const SPY(LocalAlloc) blocks;
    const auto decoded = [&] { // each image's bytes are a fixed block
        return std::count_if(blocks.calls.begin(), blocks.calls.end(),
                             [](const auto& call) { return std::get<0>(call) == LMEM_FIXED; });
    };
    InProgram([&](ProgramApp& app) {
        EXPECT_EQ(bitmaps.calls.size(), 0u);
        EXPECT_EQ(decoded(), 0);
        for (const int page : {3, 4, 1}) {
            app.ActivateView(page);
        }
        EXPECT_EQ(bitmaps.calls.size(), 0u);
        EXPECT_EQ(decoded(), 0);
        for (int i = 0; i < 3; i++) {
            app.ActivateView(2);
            Run(app, CMD_REFRESH);
            app.ActivateView(1);
            EXPECT_EQ(bitmaps.calls.size(), 8u);
            EXPECT_EQ(decoded(), 8);
        }
    });
}

TEST_F(PicturesPaintTest, APictureIsThreeCopiesInTheMiddleOfTheRow)
{
    OnPage([&](ProgramApp& app) {
        std::vector<HGDIOBJ> seen;
        for (uint32_t kind = 0; kind < 4; kind++) {
            const DrawnRow drawn = Draw(app, kind);
            ASSERT_EQ(drawn.copies.size(), 3u);
            EXPECT_EQ(drawn.copies[0].operation, DWORD{SRCINVERT});
            EXPECT_EQ(drawn.copies[1].operation, DWORD{SRCAND});
            EXPECT_EQ(drawn.copies[2].operation, DWORD{SRCINVERT});
            EXPECT_EQ(drawn.copies[0].bitmap, drawn.copies[2].bitmap);
            for (const DrawnCopy& copy : drawn.copies) {
                EXPECT_EQ(copy.place, Place(app));
                EXPECT_EQ(copy.from.x, 0);
                EXPECT_EQ(copy.from.y, 0);
                EXPECT_EQ(copy.source, drawn.copies[0].source) << "one context serves all";
            }
            for (const size_t index : {0u, 1u}) {
                HGDIOBJ bitmap = drawn.copies[index].bitmap;
                EXPECT_EQ(std::count(seen.begin(), seen.end(), bitmap), 0) << "each of its own";
                seen.push_back(bitmap);
                BITMAP measures = {};
                GetObjectW(bitmap, sizeof measures, &measures);
                EXPECT_EQ(measures.bmWidth, Side(app));
            }
            EXPECT_NE(GetCurrentObject(drawn.copies[0].source, OBJ_BITMAP), drawn.copies[0].bitmap)
                << "no picture stays selected";
        }
    });
}

TEST_F(PicturesPaintTest, APictureThatIsHigherThanTheRowStandsOutEquallyAbove)
{
    OnPage([&](ProgramApp& app) {
        const int side = Side(app);
        DRAWITEMSTRUCT item = {};
        const SPY(BitBlt) copy([&](HDC, int, int y, int, int, HDC, int, int, DWORD) {
            EXPECT_EQ(y, 50 - (side - 11) / 2) << "half of an odd difference, cut";
            return TRUE;
        });
        const ScreenDC screen;
        const MemoryDC target(screen);
        item.CtlType = 102;
        item.hDC = target;
        item.rcItem = {0, 50, 200, 61};
        SendMessageW(Page(app).Window(), WM_DRAWITEM, IDC_LIST, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(copy.calls.size(), 3u);
    });
}

TEST_F(PicturesPaintTest, LargeIconsGoWithLargePictures)
{
    static constexpr struct
    {
        int width;
        int side;
    } sizes[] = {{16, 32}, {17, 48}};
    for (const auto& icons : sizes) {
        const SPY(ImageList_GetIconSize) size([&](HIMAGELIST, int* w, int* h) {
            *w = *h = icons.width;
            return TRUE;
        });
        OnPage([&](ProgramApp& app) {
            EXPECT_EQ(Side(app), icons.side);
            const DrawnRow drawn = Draw(app, 0);
            ASSERT_EQ(drawn.copies.size(), 3u);
            EXPECT_EQ(drawn.copies[0].place, Place(app));
            EXPECT_EQ(drawn.texts.at(0).rect.left, row.left + X(8) + icons.side);
        });
    }
}

TEST_F(PicturesPaintTest, ThePictureShowsAndLetsTheGroundThrough)
{
    OnPage([&](ProgramApp& app) {
        for (uint32_t kind = 0; kind < 4; kind++) {
            Draw(app, kind, 0, [&](HDC target) {
                const Pixels pixels(target, canvasWidth, canvasHeight);
                const RECT at = Place(app);
                const RECT area = {at.left, at.top, at.left + at.right, at.top + at.bottom};
                const int through = pixels.Count(area, ground);
                EXPECT_GT(through, 0) << kind;
                EXPECT_LT(through, at.right * at.bottom * 9 / 10) << kind;
            });
        }
    });
}

TEST_F(PicturesPaintTest, AKindWithoutAPictureHasAllElse)
{
    OnPage([&](ProgramApp& app) {
        auto& first = const_cast<SSysInfo&>(Page(app).Row(0));
        for (const uint32_t kind : {4u, 9u, 0xFFFFFFFFu}) {
            first.kind = kind;
            ExpectNoPicture(app, 0);
        }
    });
}

TEST_F(PicturesPaintTest, AContainerWithoutPicturesCostsOnlyThem)
{
    Bytes bytes = Container();
    SetWord(bytes, countOffset, 0);
    OnPageOf(bytes, [&](ProgramApp& app) {
        for (uint32_t kind = 0; kind < 4; kind++) {
            ExpectNoPicture(app, kind);
        }
        Run(app, CMD_REFRESH);
        EXPECT_EQ(Page(app).RowCount(), 4u);
    });
}

TEST_F(PicturesPaintTest, AMissingPictureOrMaskLeavesNoSquare)
{
    ExpectOnlyItsKindLost(Remove);
}

TEST_F(PicturesPaintTest, ABrokenPictureOrMaskLeavesNoSquare)
{
    ExpectOnlyItsKindLost(Spoil);
}

TEST_F(PicturesPaintTest, APictureOrMaskOfTheOtherSetLeavesNoSquare)
{
    for (uint32_t small = 0; small < 8; small++) {
        Bytes bytes = Container();
        Bytes original = bytes;
        Replace(bytes, small, small + 8);
        memcpy(bytes.data() + RecordOf(bytes, small + 8) + 4, original.data() + RecordOf(original, small) + 4,
               8);
        OnPageOf(bytes, [&](ProgramApp& app) { ExpectNoPicture(app, kindOfId[small]); });
    }
}
