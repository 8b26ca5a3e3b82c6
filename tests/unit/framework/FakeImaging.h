// An imaging factory whose answers a test decides, and which tells what became of its objects.
#pragma once

#include "platform/ce.h"

#include <functional>
#include <string>

// The state of the fake that is in force; one test at a time.
struct FakeImaging
{
    HRESULT createFactory = S_OK;
    HRESULT createImage = S_OK;
    HRESULT imageInfo = S_OK;
    HRESULT physicalDimension = S_OK;
    HRESULT draw = S_OK;
    UINT width = 4;
    UINT height = 3;
    COLORREF colour = RGB(1, 2, 3); // drawn over the left column of the target rectangle

    int factories = 0; // alive
    int images = 0;
    std::string bufferRead; // what the last image was made from
    BufferDisposalFlag disposal = BufferDisposalFlagNone;
    RECT drawnTo = {};
    std::function<void()> decoding; // may answer each image differently: bufferRead tells which it is

    FakeImaging();
    ~FakeImaging();
    FakeImaging(const FakeImaging&) = delete;
    FakeImaging& operator=(const FakeImaging&) = delete;
};

// For ImportHook on "CoCreateInstance".
HRESULT WINAPI CreateFakeFactory(const IID& classId, IUnknown* outer, DWORD context, const IID& interfaceId,
                                 void** object);
