// The imaging factory: pictures from memory.
#include "platform/pc/coredll/Imaging.h"

#include "platform/pc/coredll/Com.h"
#include "platform/pc/coredll/ComObject.h"
#include "platform/pc/coredll/Image.h"

#include <wincodec.h>

// The program makes a factory at its start and often no picture until its end, so the PC's component is only
// loaded for the first one.
class Factory final : public ComObject<Factory, IImagingFactory, IID_IImagingFactory>
{
    IWICImagingFactory* codecs = nullptr; // released at the end

    HRESULT LoadCodecs()
    {
        if (codecs) {
            return S_OK;
        }
        return CreateComObject(CLSID_WICImagingFactory, IID_IWICImagingFactory,
                               reinterpret_cast<void**>(&codecs));
    }

  public:
    ~Factory()
    {
        if (codecs) {
            codecs->Release();
        }
    }

    HRESULT STDMETHODCALLTYPE CreateImageFromStream(void*, IImage**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateImageFromFile(const wchar_t*, IImage**) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const void* buffer, UINT size,
                                                    BufferDisposalFlag disposal, IImage** image) override
    {
        if (!buffer || !image) {
            return E_INVALIDARG;
        }
        *image = nullptr;
        const HRESULT loaded = LoadCodecs();
        return FAILED(loaded) ? loaded : CreateImage(codecs, buffer, size, disposal, image);
    }
};

HRESULT CreateImagingFactory(const IID& interfaceId, void** object)
{
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    if (!HasStartedCom()) {
        return CO_E_NOTINITIALIZED;
    }
    auto* factory = new Factory;
    const HRESULT result = factory->QueryInterface(interfaceId, object);
    factory->Release();
    return result;
}
