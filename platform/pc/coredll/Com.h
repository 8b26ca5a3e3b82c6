// COM for the substitute's own needs.
#pragma once

#include "platform/ce.h"

extern "C" HRESULT WINAPI ce_CoInitializeEx(void* reserved, DWORD flags);
extern "C" void WINAPI ce_CoUninitialize();

// Whether the calling thread has started COM, as it takes it: the PC's own waits for the first object.
bool HasStartedCom();

// An object of one of the PC's classes. The first one of a thread that has started COM starts the PC's.
HRESULT CreateComObject(const CLSID& classId, const IID& interfaceId, void** object,
                        IUnknown* outer = nullptr, DWORD context = CLSCTX_INPROC_SERVER);
