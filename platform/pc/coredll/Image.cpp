// A picture decoded from memory by the PC's imaging component.
#include "platform/pc/coredll/Image.h"

#include "platform/pc/coredll/ComObject.h"

#include <wincodec.h>

namespace {

// Releases an interface at the end of the block.
template <class T>
struct Holder
{
    T* object = nullptr;
    Holder() = default;
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;
    ~Holder()
    {
        if (object) {
            object->Release();
        }
    }
    T* operator->() const { return object; }
    T* Detach()
    {
        T* detached = object;
        object = nullptr;
        return detached;
    }
};

// A memory DC with a 32-bit picture of its own selected, top row first.
class Canvas
{
  public:
    Canvas(HDC like, int width, int height)
    {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        dc = CreateCompatibleDC(like);
        bitmap = CreateDIBSection(like, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        if (dc && bitmap) {
            previous = SelectObject(dc, bitmap);
        }
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas()
    {
        if (previous) {
            SelectObject(dc, previous);
        }
        if (bitmap) {
            DeleteObject(bitmap);
        }
        if (dc) {
            DeleteDC(dc);
        }
    }
    bool Exists() const { return previous != nullptr; }
    HDC Dc() const { return dc; }
    BYTE* Bits() const { return static_cast<BYTE*>(bits); }

  private:
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ previous = nullptr;
    void* bits = nullptr;
};

class Image final : public ComObject<Image, IImage, IID_IImage>
{
  public:
    Image(IWICBitmapSource* source, const void* encoded, BufferDisposalFlag ofBuffer)
        : pixels(source), buffer(encoded), disposal(ofBuffer)
    {}

    HRESULT STDMETHODCALLTYPE GetPhysicalDimension(SIZE* size) override
    {
        ImageInfo info;
        const HRESULT result = GetImageInfo(&info);
        if (FAILED(result) || info.Xdpi <= 0 || info.Ydpi <= 0) {
            return FAILED(result) ? result : E_FAIL;
        }
        size->cx = static_cast<LONG>(info.Width * 2540.0 / info.Xdpi + 0.5);
        size->cy = static_cast<LONG>(info.Height * 2540.0 / info.Ydpi + 0.5);
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetImageInfo(ImageInfo* info) override
    {
        *info = {};
        const HRESULT result = pixels->GetSize(&info->Width, &info->Height);
        if (FAILED(result)) {
            return result;
        }
        info->TileWidth = info->Width;
        info->TileHeight = info->Height;
        return pixels->GetResolution(&info->Xdpi, &info->Ydpi);
    }

    HRESULT STDMETHODCALLTYPE SetImageFlags(UINT) override { return S_OK; }

    // Scales the picture, or its part sourceRect, onto targetRect and lets the background show where it is
    // transparent.
    HRESULT STDMETHODCALLTYPE Draw(HDC target, const RECT* targetRect, const RECT* sourceRect) override
    {
        UINT width = 0;
        UINT height = 0;
        HRESULT result = pixels->GetSize(&width, &height);
        if (FAILED(result) || !targetRect) {
            return FAILED(result) ? result : E_INVALIDARG;
        }
        const Canvas canvas(target, static_cast<int>(width), static_cast<int>(height));
        if (!canvas.Exists()) {
            return E_OUTOFMEMORY;
        }
        result = pixels->CopyPixels(nullptr, width * 4, width * height * 4, canvas.Bits());
        if (FAILED(result)) {
            return result;
        }
        RECT source = {0, 0, static_cast<LONG>(width), static_cast<LONG>(height)};
        if (sourceRect) {
            source = *sourceRect;
        }
        const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        const BOOL drawn =
            GdiAlphaBlend(target, targetRect->left, targetRect->top, targetRect->right - targetRect->left,
                          targetRect->bottom - targetRect->top, canvas.Dc(), source.left, source.top,
                          source.right - source.left, source.bottom - source.top, blend);
        return drawn ? S_OK : E_FAIL;
    }

    HRESULT STDMETHODCALLTYPE PushIntoSink(void*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetThumbnail(UINT, UINT, IImage**) override { return E_NOTIMPL; }

    ~Image()
    {
        // The decoder reads from the buffer, so the buffer goes last.
        pixels->Release();
        if (disposal == BufferDisposalFlagGlobalFree) {
            LocalFree(const_cast<void*>(buffer));
        } else if (disposal == BufferDisposalFlagUnmapView) {
            UnmapViewOfFile(buffer);
        }
    }

  private:
    IWICBitmapSource* pixels; // 32 bits a pixel, colours multiplied by alpha; released at the end
    const void* buffer;
    BufferDisposalFlag disposal;
};

} // namespace

static HRESULT Decode(IWICImagingFactory* codecs, const void* buffer, UINT size, IWICBitmapSource** pixels)
{
    Holder<IWICStream> stream;
    HRESULT result = codecs->CreateStream(&stream.object);
    if (SUCCEEDED(result)) {
        result = stream->InitializeFromMemory(static_cast<BYTE*>(const_cast<void*>(buffer)), size);
    }
    Holder<IWICBitmapDecoder> decoder;
    if (SUCCEEDED(result)) {
        result = codecs->CreateDecoderFromStream(stream.object, nullptr, WICDecodeMetadataCacheOnDemand,
                                                 &decoder.object);
    }
    Holder<IWICBitmapFrameDecode> frame;
    if (SUCCEEDED(result)) {
        result = decoder->GetFrame(0, &frame.object);
    }
    Holder<IWICFormatConverter> converter;
    if (SUCCEEDED(result)) {
        result = codecs->CreateFormatConverter(&converter.object);
    }
    if (SUCCEEDED(result)) {
        result = converter->Initialize(frame.object, GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                                       nullptr, 0.0, WICBitmapPaletteTypeCustom);
    }
    if (SUCCEEDED(result)) {
        *pixels = converter.Detach();
    }
    return result;
}

HRESULT CreateImage(IWICImagingFactory* codecs, const void* buffer, UINT size, BufferDisposalFlag disposal,
                    IImage** image)
{
    *image = nullptr;
    IWICBitmapSource* pixels = nullptr;
    const HRESULT result = Decode(codecs, buffer, size, &pixels);
    if (FAILED(result)) {
        return result;
    }
    *image = new Image(pixels, buffer, disposal);
    return S_OK;
}
