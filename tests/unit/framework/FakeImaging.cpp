// An imaging factory whose answers a test decides.
#include "tests/unit/framework/FakeImaging.h"

#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // COM interfaces are released, never deleted

static FakeImaging* fake;

FakeImaging::FakeImaging()
{
    fake = this;
}

FakeImaging::~FakeImaging()
{
    fake = nullptr;
}

// What both objects have in common: a count of references, and being counted while they live.
template <typename Interface>
class FakeObject : public Interface
{
  private:
    int& alive;
    ULONG references = 1;

  public:
    explicit FakeObject(int& counter) : alive(counter) { alive++; }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    HRESULT STDMETHODCALLTYPE QueryInterface(const IID&, void**) override { return E_NOINTERFACE; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --references;
        if (!left) {
            alive--;
            Free();
        }
        return left;
    }

  protected:
    virtual void Free() = 0;
};

class FakeImage final : public FakeObject<IImage>
{
  private:
    void* buffer;

  public:
    explicit FakeImage(void* owned) : FakeObject(fake->images), buffer(owned) {}

    HRESULT STDMETHODCALLTYPE GetPhysicalDimension(SIZE* size) override
    {
        *size = {123, 456};
        return fake->physicalDimension;
    }

    HRESULT STDMETHODCALLTYPE GetImageInfo(ImageInfo* info) override
    {
        if (SUCCEEDED(fake->imageInfo)) {
            info->Width = fake->width;
            info->Height = fake->height;
        }
        return fake->imageInfo;
    }

    HRESULT STDMETHODCALLTYPE Draw(HDC target, const RECT* targetRect, const RECT*) override
    {
        fake->drawnTo = *targetRect;
        for (LONG y = targetRect->top; y < targetRect->bottom; y++) {
            SetPixel(target, targetRect->left, y, fake->colour);
        }
        return fake->draw;
    }

    HRESULT STDMETHODCALLTYPE SetImageFlags(UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE PushIntoSink(void*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetThumbnail(UINT, UINT, IImage**) override { return E_NOTIMPL; }

  protected:
    void Free() override
    {
        LocalFree(buffer);
        delete this;
    }
};

class FakeFactory final : public FakeObject<IImagingFactory>
{
  public:
    FakeFactory() : FakeObject(fake->factories) {}
    HRESULT STDMETHODCALLTYPE CreateImageFromStream(void*, IImage**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateImageFromFile(const wchar_t*, IImage**) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const void* buffer, UINT size,
                                                    BufferDisposalFlag disposal, IImage** image) override
    {
        fake->bufferRead.assign(static_cast<const char*>(buffer), size);
        fake->disposal = disposal;
        if (fake->decoding) {
            fake->decoding();
        }
        if (SUCCEEDED(fake->createImage)) {
            *image = new FakeImage(const_cast<void*>(buffer));
        }
        return fake->createImage;
    }

  protected:
    void Free() override { delete this; }
};

HRESULT WINAPI CreateFakeFactory(const IID& classId, IUnknown*, DWORD context, const IID& interfaceId,
                                 void** object)
{
    if (classId != CLSID_ImagingFactory || interfaceId != IID_IImagingFactory ||
        context != CLSCTX_INPROC_SERVER) {
        return E_INVALIDARG;
    }
    if (SUCCEEDED(fake->createFactory)) {
        *object = new FakeFactory;
    }
    return fake->createFactory;
}
