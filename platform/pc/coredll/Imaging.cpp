// The imaging factory: pictures from memory.
#include "platform/pc/coredll/Imaging.h"

#include "platform/pc/coredll/ComObject.h"
#include "platform/pc/coredll/Image.h"

#include <wincodec.h>

namespace {

class Factory final : public ComObject<Factory, IImagingFactory, IID_IImagingFactory>
{
  public:
    explicit Factory(IWICImagingFactory* codecs) : m_codecs(codecs) {}
    ~Factory() { m_codecs->Release(); }

    HRESULT STDMETHODCALLTYPE CreateImageFromStream(void*, IImage**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateImageFromFile(const wchar_t*, IImage**) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const void* buffer, UINT size,
                                                    BufferDisposalFlag disposal, IImage** image) override
    {
        if (!buffer || !image)
            return E_INVALIDARG;
        return CreateImage(m_codecs, buffer, size, disposal, image);
    }

  private:
    IWICImagingFactory* m_codecs; // released at the end
};

} // namespace

HRESULT CreateImagingFactory(const IID& interfaceId, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    IWICImagingFactory* codecs = nullptr;
    HRESULT result = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory, reinterpret_cast<void**>(&codecs));
    if (FAILED(result))
        return result;
    auto* factory = new Factory(codecs);
    result = factory->QueryInterface(interfaceId, object);
    factory->Release();
    return result;
}
