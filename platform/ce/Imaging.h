// The imaging library, a COM server.
#pragma once

#include "platform/ce/Windows.h"

enum BufferDisposalFlag
{
    BufferDisposalFlagNone = 0,
    BufferDisposalFlagGlobalFree = 1, // the image owns the buffer and frees it with LocalFree
    BufferDisposalFlagUnmapView = 2
};

// The platform's names. NOLINTBEGIN(readability-identifier-naming)
struct ImageInfo
{
    GUID RawDataFormat;
    INT PixelFormat; // a number here, not the desktop's GUID
    UINT Width;      // pixels
    UINT Height;
    UINT TileWidth;
    UINT TileHeight;
    double Xdpi;
    double Ydpi;
    UINT Flags;
};
// NOLINTEND(readability-identifier-naming)

// COM interfaces are released, never deleted.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
struct IImage : public IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE GetPhysicalDimension(SIZE* size) = 0; // 0.01 mm
    virtual HRESULT STDMETHODCALLTYPE GetImageInfo(ImageInfo* info) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetImageFlags(UINT flags) = 0;
    virtual HRESULT STDMETHODCALLTYPE Draw(HDC target, const RECT* targetRect, const RECT* sourceRect) = 0;
    virtual HRESULT STDMETHODCALLTYPE PushIntoSink(void* sink) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetThumbnail(UINT width, UINT height, IImage** thumbnail) = 0;
};

struct IImagingFactory : public IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromStream(void* stream, IImage** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromFile(const wchar_t* path, IImage** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const void* buffer, UINT size,
                                                            BufferDisposalFlag disposal, IImage** image) = 0;
    // The interface goes on; the program calls nothing behind this method.
};
#pragma GCC diagnostic pop

inline constexpr GUID CLSID_ImagingFactory = {
    0x327abda8, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID IID_IImagingFactory = {
    0x327abda7, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID IID_IImage = {
    0x327abda9, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
