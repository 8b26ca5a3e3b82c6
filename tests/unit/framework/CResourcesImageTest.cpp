// CResources: loading entries and rendering them, with images whose behaviour the test decides.
#include "framework/CResources.h"
#include "tests/support/Fatal.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestHeap.h"
#include "tests/unit/framework/ContainerBytes.h"
#include "tests/unit/framework/FakeImaging.h"

// Local-heap blocks and GDI objects that the program holds.
static int localBlocks;
static SIZE_T largestRequest;
static int memoryContexts;
static int sections;

static void* WINAPI CountAlloc(UINT flags, SIZE_T size)
{
    largestRequest = size > largestRequest ? size : largestRequest;
    void* const block = HeapAlloc(GetProcessHeap(), flags & LMEM_ZEROINIT ? HEAP_ZERO_MEMORY : 0, size);
    localBlocks += block != nullptr;
    return block;
}

static void* WINAPI RefuseAlloc(UINT, SIZE_T)
{
    return nullptr;
}

static void* WINAPI CountFree(void* block)
{
    localBlocks--;
    HeapFree(GetProcessHeap(), 0, block);
    return nullptr;
}

class CResourcesImageTest : public testing::Test
{
  protected:
    TempFolder folder;
    FakeImaging imaging;
    const ImportHook factory{"CoCreateInstance", CreateFakeFactory};
    const ImportHook alloc{"LocalAlloc", CountAlloc};
    const ImportHook free{"LocalFree", CountFree};
    CResources* resources = nullptr;

    CResourcesImageTest() { localBlocks = 0; }
    ~CResourcesImageTest() override { CResources::Close(resources); }

    void Open(const Bytes& bytes)
    {
        resources = CResources::Open(folder.WriteFile(L"pictures.zrs", bytes).c_str());
        ASSERT_NE(resources, nullptr);
    }

    void ExpectNoImage(uint32_t id, uint32_t code)
    {
        const size_t before = LiveBlocks();
        EXPECT_EQ(resources->LoadImage(id), nullptr);
        EXPECT_EQ(LiveBlocks(), before);
        EXPECT_EQ(CResources::LastError().code, code);
        EXPECT_EQ(CResources::LastError().argument, id);
        EXPECT_EQ(localBlocks, 0);
        EXPECT_EQ(imaging.images, 0);
    }
};

TEST_F(CResourcesImageTest, AnImageIsMadeFromTheEntrysBytesAndOwnsThem)
{
    Open(ContainerBytes({{7, {'x'}}, {0xFFFFFFFF, {'a', 'b', 'c'}}}));
    SImage* const image = resources->LoadImage(0xFFFFFFFF);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(imaging.bufferRead, "abc");
    EXPECT_EQ(imaging.disposal, BufferDisposalFlagGlobalFree);
    EXPECT_EQ(image->width, 4u);
    EXPECT_EQ(image->height, 3u);
    EXPECT_EQ(image->physicalWidth, 123u);
    EXPECT_EQ(image->physicalHeight, 456u);
    EXPECT_EQ(localBlocks, 1);
    CResources::FreeImage(image);
    EXPECT_EQ(imaging.images, 0);
    EXPECT_EQ(localBlocks, 0);
}

TEST_F(CResourcesImageTest, SizesThatAreNotKnownAreZero)
{
    Open(ContainerBytes({{7, {'x'}}}));
    imaging.imageInfo = E_FAIL;
    imaging.physicalDimension = E_FAIL;
    SImage* const image = resources->LoadImage(7);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->width, 0u);
    EXPECT_EQ(image->height, 0u);
    EXPECT_EQ(image->physicalWidth, 0u);
    EXPECT_EQ(image->physicalHeight, 0u);
    CResources::FreeImage(image);
}

TEST_F(CResourcesImageTest, TheFirstOfTwoRecordsWins)
{
    Open(ContainerBytes({{7, {'1', '1'}}, {7, {'2', '2'}}}));
    SImage* const image = resources->LoadImage(7);
    EXPECT_EQ(imaging.bufferRead, "11");
    CResources::FreeImage(image);

    // Even where it is the one that cannot be read.
    CResources::Close(resources);
    Open(HeaderBytes(2) + RecordBytes(7, 67, 100) + RecordBytes(7, 67, 1) + Bytes{'x'});
    ExpectNoImage(7, 5);
}

TEST_F(CResourcesImageTest, AMissingIdIsCode5)
{
    Open(ContainerBytes({{7, {'x'}}}));
    ExpectNoImage(8, 5);
    ExpectNoImage(0, 5);
}

TEST_F(CResourcesImageTest, DataThatAreNotThereAreCode5)
{
    Open(HeaderBytes(5) + RecordBytes(1, 127, 5) + RecordBytes(2, 131, 1) + RecordBytes(3, 500, 1) +
         RecordBytes(4, 0, 0xFFFFFFFF) + RecordBytes(5, 0x7FFFFFFF, 0xFFFFFFFF) + Bytes{'a', 'b', 'c', 'd'});
    largestRequest = 0;
    for (uint32_t id = 1; id <= 5; id++) {
        ExpectNoImage(id, 5);
    }
    EXPECT_LE(largestRequest, 5u); // a size is not believed
}

static BOOL WINAPI FailReading(HANDLE, void*, DWORD, DWORD* n, OVERLAPPED*)
{
    *n = 0;
    return FALSE;
}

TEST_F(CResourcesImageTest, AFailingReadAndAFailingAllocationAreCode5)
{
    Open(ContainerBytes({{7, {'x'}}}));
    {
        const ImportHook read("ReadFile", FailReading);
        ExpectNoImage(7, 5);
    }
    {
        const ImportHook refuse("LocalAlloc", RefuseAlloc);
        ExpectNoImage(7, 5);
    }
    const AllocationFailure none(0);
    ExpectNoImage(7, 5);
}

TEST_F(CResourcesImageTest, AnOffsetThatCannotBeSoughtIsFatal)
{
    Open(HeaderBytes(1) + RecordBytes(7, 0x80000000, 1));
    EXPECT_FATAL(resources->LoadImage(7), L"CFile::SeekBegin", L"Error");
}

TEST_F(CResourcesImageTest, BytesThatAreNoImageAreCode6AndFreed)
{
    Open(ContainerBytes({{7, {'x'}}, {8, {}}}));
    imaging.createImage = E_FAIL;
    ExpectNoImage(7, 6);
    ExpectNoImage(8, 6);
    EXPECT_EQ(resources->LoadBitmap(7), nullptr);
    EXPECT_EQ(CResources::LastError().code, 6u);
}

TEST_F(CResourcesImageTest, ABitmapHasTheImageOverTheWindowColour)
{
    Open(ContainerBytes({{7, {'x'}}}));
    const HBITMAP bitmap = resources->LoadBitmap(7);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(imaging.images, 0);
    EXPECT_EQ(localBlocks, 0);
    EXPECT_EQ(imaging.drawnTo.right, 4);
    EXPECT_EQ(imaging.drawnTo.bottom, 3);

    DIBSECTION section = {};
    ASSERT_EQ(GetObjectW(bitmap, sizeof(section), &section), static_cast<int>(sizeof(section)));
    EXPECT_EQ(section.dsBmih.biWidth, 4);
    EXPECT_EQ(section.dsBmih.biHeight, 3); // positive: bottom-up
    EXPECT_EQ(section.dsBmih.biPlanes, 1);
    EXPECT_EQ(section.dsBmih.biCompression, static_cast<DWORD>(BI_RGB));
    const HDC screen = GetDC(nullptr);
    EXPECT_EQ(section.dsBmih.biBitCount, GetDeviceCaps(screen, BITSPIXEL));

    const HDC memory = CreateCompatibleDC(screen);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    ASSERT_NE(before, nullptr); // selected nowhere else
    for (int y = 0; y < 3; y++) {
        EXPECT_EQ(GetPixel(memory, 0, y), RGB(1, 2, 3));
        for (int x = 1; x < 4; x++) {
            EXPECT_EQ(GetPixel(memory, x, y), GetSysColor(COLOR_WINDOW)) << x << ' ' << y;
        }
    }
    SelectObject(memory, before);
    EXPECT_TRUE(DeleteObject(bitmap));
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

static HDC WINAPI CountContext(HDC)
{
    memoryContexts++;
    return reinterpret_cast<HDC>(static_cast<INT_PTR>(0x11));
}

static BOOL WINAPI EndContext(HDC)
{
    memoryContexts--;
    return TRUE;
}

static HBITMAP WINAPI CountSection(HDC, const BITMAPINFO* info, UINT, void**, HANDLE, DWORD)
{
    if (info->bmiHeader.biWidth <= 0 || info->bmiHeader.biHeight == 0) {
        return nullptr;
    }
    sections++;
    return reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(0x22));
}

static BOOL WINAPI EndObject(HGDIOBJ)
{
    sections--;
    return TRUE;
}

TEST_F(CResourcesImageTest, ARenderingThatFailsLeavesNothing)
{
    Open(ContainerBytes({{7, {'x'}}}));
    SImage* const image = resources->LoadImage(7);
    ASSERT_NE(image, nullptr);
    const ImportHook context("CreateCompatibleDC", CountContext);
    const ImportHook endContext("DeleteDC", EndContext);
    const ImportHook section("CreateDIBSection", CountSection);
    const ImportHook endObject("DeleteObject", EndObject);
    const struct
    {
        HRESULT info;
        HRESULT draw;
        UINT width;
        UINT height;
    } failures[] = {{E_FAIL, S_OK, 4, 3},
                    {S_OK, E_FAIL, 4, 3},
                    {S_OK, S_OK, 0, 3},
                    {S_OK, S_OK, 4, 0},
                    {S_OK, S_OK, 0x80000001, 3},
                    {S_OK, S_OK, 4, 0xFFFFFFFD}}; // as a signed height this would be a top-down bitmap
    memoryContexts = sections = 0;
    for (const auto& failure : failures) {
        imaging.imageInfo = failure.info;
        imaging.draw = failure.draw;
        imaging.width = failure.width;
        imaging.height = failure.height;
        EXPECT_EQ(CResources::RenderImage(image), nullptr);
        EXPECT_EQ(memoryContexts, 0);
        EXPECT_EQ(sections, 0);
    }
    CResources::FreeImage(image);
}

TEST_F(CResourcesImageTest, EveryRequestDecodesAnew)
{
    Open(ContainerBytes({{7, {'x'}}}));
    SImage* const first = resources->LoadImage(7);
    SImage* const second = resources->LoadImage(7);
    EXPECT_EQ(imaging.images, 2);
    EXPECT_NE(first->image, second->image);
    CResources::FreeImage(first);
    CResources::FreeImage(second);
    CResources::FreeImage(nullptr);
}
