// COM's start, and the imaging library.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/ComObject.h"

namespace runner {

static Word DoGetPhysicalDimension(Call& call)
{
    SIZE size = {};
    const HRESULT result = ComObject<IImage>(call)->GetPhysicalDimension(&size);
    if (SUCCEEDED(result)) {
        call.RecordAt<SIZE>(1).SetAll(size);
    }
    return static_cast<Word>(result);
}

static Word DoGetImageInfo(Call& call)
{
    static_assert(sizeof(ImageInfo) == 64, "both sides have it in the same form");
    ImageInfo info = {};
    const HRESULT result = ComObject<IImage>(call)->GetImageInfo(&info);
    if (SUCCEEDED(result)) {
        call.RecordAt<ImageInfo>(1).SetAll(info);
    }
    return static_cast<Word>(result);
}

static Word DoDraw(Call& call)
{
    const auto* target = static_cast<const RECT*>(call.In(call.Argument(2), sizeof(RECT)));
    const auto* source = static_cast<const RECT*>(call.In(call.Argument(3), sizeof(RECT)));
    return static_cast<Word>(ComObject<IImage>(call)->Draw(HandleAt<HDC>(call, 1), target, source));
}

// The image takes the guest's block over. What the host's image is made of is a copy, which it frees.
static Word DoCreateFromBuffer(Call& call)
{
    static const ComMethods methods("IImage", {nullptr, nullptr, nullptr, DoGetPhysicalDimension,
                                               DoGetImageInfo, nullptr, DoDraw, nullptr, nullptr});
    const Address buffer = call.Argument(1);
    const Word size = call.Argument(2);
    if (call.Argument(3) != BufferDisposalFlagGlobalFree || !call.guest.machine.heap.IsBlock(buffer)) {
        call.guest.Misuse("an image of something else than a block of the heap is not carried across",
                          buffer);
    }
    void* copy = LocalAlloc(LMEM_FIXED, size);
    std::memcpy(copy, call.In(buffer, size, 1), size);
    IImage* image = nullptr;
    const HRESULT result = ComObject<IImagingFactory>(call)->CreateImageFromBuffer(
        copy, size, BufferDisposalFlagGlobalFree, &image);
    if (FAILED(result)) {
        LocalFree(copy);
    }
    call.RecordAt<Word>(4).SetAll(SUCCEEDED(result) ? GiveComObject(call, image, methods, buffer) : 0);
    return static_cast<Word>(result);
}

static Word DoCreateInstance(Call& call)
{
    static const ComMethods methods("IImagingFactory",
                                    {nullptr, nullptr, nullptr, nullptr, nullptr, DoCreateFromBuffer});
    const auto* classId = static_cast<const GUID*>(call.In(call.Argument(0), sizeof(GUID)));
    const auto* interfaceId = static_cast<const GUID*>(call.In(call.Argument(3), sizeof(GUID)));
    if (*classId != CLSID_ImagingFactory || *interfaceId != IID_IImagingFactory || call.Argument(1) != 0) {
        call.guest.Misuse("a class that is not carried across");
    }
    void* created = nullptr;
    const HRESULT result = CoCreateInstance(*classId, nullptr, call.Argument(2), *interfaceId, &created);
    Address given = 0;
    if (SUCCEEDED(result)) {
        given = GiveComObject(call, static_cast<IImagingFactory*>(created), methods);
    }
    call.RecordAt<Word>(4).SetAll(given);
    return static_cast<Word>(result);
}

static unsigned comStarts = 0;

static Word DoStartCom(Call& call)
{
    const HRESULT result = CoInitializeEx(reinterpret_cast<void*>(call.Extended(0)), call.Argument(1));
    comStarts += SUCCEEDED(result) ? 1 : 0;
    return static_cast<Word>(result);
}

// The library goes with the last end, and the code of its objects with it.
static Word DoEndCom(Call& call)
{
    if (comStarts == 0) {
        call.guest.Misuse("COM has not been started");
    }
    if (--comStarts == 0 && call.guest.cookies.LiveByKind().contains(CookieKind::Com)) {
        call.guest.Misuse("objects of COM are still held");
    }
    CoUninitialize();
    return call.NoResult();
}

static constexpr Bridge imagingRows[] = {
    {"CoCreateInstance", DoCreateInstance},
    {"CoInitializeEx", DoStartCom},
    {"CoUninitialize", DoEndCom},
};

Bridges ImagingBridges()
{
    return imagingRows;
}

} // namespace runner
