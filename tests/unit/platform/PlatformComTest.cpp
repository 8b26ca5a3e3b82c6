// COM as the coredll substitute starts it: for real with the first object only.
#include "platform/ce.h"
#include "tests/unit/framework/ContainerBytes.h"

#include <gtest/gtest.h>

#include <functional>
#include <objidl.h>
#include <thread>

// The shell's link object, a class that the PC has.
static constexpr GUID shellLink = {
    0x00021401, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

static constexpr GUID unknownInterface = {
    0x00000000, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

// On a thread of its own, which nothing else has started COM for.
static void OnNewThread(const std::function<void()>& body)
{
    std::thread(body).join();
}

// Asked of the PC's library itself: the kind of apartment that the thread is in, -1 when in none.
static int Apartment()
{
    using Ask = HRESULT(WINAPI*)(APTTYPE*, APTTYPEQUALIFIER*);
    const HMODULE library = LoadLibraryW(L"ole32.dll");
    const auto ask =
        reinterpret_cast<Ask>(reinterpret_cast<void*>(GetProcAddress(library, "CoGetApartmentType")));
    APTTYPE type = APTTYPE_NA;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    return SUCCEEDED(ask(&type, &qualifier)) ? type : -1;
}

static constexpr int none = -1;

// The first single-threaded apartment of a process is its main one.
static bool IsSingleThreaded(int apartment)
{
    return apartment == APTTYPE_MAINSTA || apartment == APTTYPE_STA;
}

static HRESULT MakeAndRelease(const GUID& classId, const GUID& interfaceId = unknownInterface)
{
    void* object = nullptr;
    const HRESULT result = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &object);
    EXPECT_EQ(object != nullptr, SUCCEEDED(result));
    if (object) {
        static_cast<IUnknown*>(object)->Release();
    }
    return result;
}

TEST(PlatformComTest, AStartAloneStartsNothing)
{
    OnNewThread([] {
        EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
        EXPECT_EQ(Apartment(), none);
        CoUninitialize();
        EXPECT_EQ(Apartment(), none);
    });
}

TEST(PlatformComTest, TheFirstObjectStartsItSingleThreadedUntilTheEnd)
{
    OnNewThread([] {
        EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
        EXPECT_EQ(MakeAndRelease(shellLink), S_OK);
        EXPECT_TRUE(IsSingleThreaded(Apartment()));
        CoUninitialize();
        EXPECT_EQ(Apartment(), none);
    });
}

TEST(PlatformComTest, AStartBehindAnEndIsRealAgain)
{
    OnNewThread([] {
        for (int round = 0; round < 2; round++) {
            EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
            EXPECT_EQ(MakeAndRelease(shellLink), S_OK);
            CoUninitialize();
            EXPECT_EQ(Apartment(), none);
        }
    });
}

TEST(PlatformComTest, NestedStartsEndWithTheLast)
{
    OnNewThread([] {
        EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
        EXPECT_EQ(CoInitializeEx(nullptr, 0), S_FALSE);
        EXPECT_EQ(MakeAndRelease(shellLink), S_OK);
        EXPECT_EQ(MakeAndRelease(shellLink), S_OK);
        CoUninitialize();
        EXPECT_TRUE(IsSingleThreaded(Apartment()));
        CoUninitialize();
        EXPECT_EQ(Apartment(), none);
    });
}

TEST(PlatformComTest, EachThreadStartsItsOwn)
{
    OnNewThread([] {
        EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
        OnNewThread([] {
            EXPECT_EQ(MakeAndRelease(shellLink), CO_E_NOTINITIALIZED);
            EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
            EXPECT_EQ(MakeAndRelease(shellLink), S_OK);
            CoUninitialize();
        });
        EXPECT_EQ(Apartment(), none);
        CoUninitialize();
    });
}

TEST(PlatformComTest, WithoutAStartThereAreNoObjects)
{
    OnNewThread([] {
        EXPECT_EQ(MakeAndRelease(shellLink), CO_E_NOTINITIALIZED);
        EXPECT_EQ(MakeAndRelease(CLSID_ImagingFactory, IID_IImagingFactory), CO_E_NOTINITIALIZED);
        CoUninitialize(); // one too many
        EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
        EXPECT_EQ(MakeAndRelease(shellLink), S_OK);
        CoUninitialize();
        EXPECT_EQ(Apartment(), none);
    });
}

TEST(PlatformComTest, AnImagingFactoryStartsNothingBeforeItsFirstPicture)
{
    OnNewThread([] {
        EXPECT_EQ(CoInitializeEx(nullptr, 0), S_OK);
        void* made = nullptr;
        ASSERT_EQ(
            CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IImagingFactory, &made),
            S_OK);
        auto* factory = static_cast<IImagingFactory*>(made);
        EXPECT_EQ(Apartment(), none);
        const Bytes picture = PngBytes();
        for (int i = 0; i < 2; i++) {
            IImage* image = nullptr;
            ASSERT_EQ(factory->CreateImageFromBuffer(picture.data(), static_cast<UINT>(picture.size()),
                                                     BufferDisposalFlagNone, &image),
                      S_OK);
            EXPECT_TRUE(IsSingleThreaded(Apartment()));
            image->Release();
        }
        factory->Release();
        CoUninitialize();
        EXPECT_EQ(Apartment(), none);
    });
}
