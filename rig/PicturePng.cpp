// Picture as a PNG file, by the Windows Imaging Component.
#include "rig/Picture.h"

#include <objbase.h>
#include <wincodec.h>

namespace rig {

namespace {

// Holds one COM object.
template <class Interface>
class Held
{
    Interface* object = nullptr;

  public:
    Held() = default;
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held()
    {
        if (object) {
            object->Release();
        }
    }
    Interface** Slot() { return &object; }
    Interface* Get() const { return object; }
    Interface* operator->() const { return object; }
};

} // namespace

static bool WritePng(const std::wstring& path, UINT width, UINT height, const std::vector<uint32_t>& pixels)
{
    Held<IWICImagingFactory> factory;
    Held<IWICStream> stream;
    Held<IWICBitmapEncoder> encoder;
    Held<IWICBitmapFrameEncode> frame;
    Held<IWICBitmap> bitmap;
    const auto size = static_cast<UINT>(pixels.size() * sizeof(uint32_t));
    auto* bytes = reinterpret_cast<BYTE*>(const_cast<uint32_t*>(pixels.data()));
    return SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory, reinterpret_cast<void**>(factory.Slot()))) &&
           SUCCEEDED(factory->CreateStream(stream.Slot())) &&
           SUCCEEDED(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.Slot())) &&
           SUCCEEDED(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache)) &&
           SUCCEEDED(encoder->CreateNewFrame(frame.Slot(), nullptr)) &&
           SUCCEEDED(frame->Initialize(nullptr)) &&
           SUCCEEDED(factory->CreateBitmapFromMemory(width, height, GUID_WICPixelFormat32bppBGR, width * 4,
                                                     size, bytes, bitmap.Slot())) &&
           SUCCEEDED(frame->WriteSource(bitmap.Get(), nullptr)) && SUCCEEDED(frame->Commit()) &&
           SUCCEEDED(encoder->Commit());
}

bool Picture::SavePng(const std::wstring& path) const
{
    if (pixels.empty()) {
        return false;
    }
    const HRESULT joined = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    const bool written = WritePng(path, static_cast<UINT>(width), static_cast<UINT>(height), pixels);
    if (SUCCEEDED(joined)) {
        CoUninitialize();
    }
    return written;
}

} // namespace rig
