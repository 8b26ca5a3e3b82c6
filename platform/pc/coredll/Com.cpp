// COM: start-up of a thread and the classes that only a device has.
#include "platform/ce.h"
#include "platform/pc/coredll/Imaging.h"

#include <objbase.h>

// The device knows one threading model. On the PC flags 0 would mean the multi-threaded one, in which the
// shell refuses to open shortcuts.
extern "C" HRESULT WINAPI ce_CoInitializeEx(void* reserved, DWORD flags)
{
    return CoInitializeEx(reserved, flags == 0 ? static_cast<DWORD>(COINIT_APARTMENTTHREADED) : flags);
}

extern "C" HRESULT WINAPI ce_CoCreateInstance(const CLSID& classId, IUnknown* outer, DWORD context,
                                              const IID& interfaceId, void** object)
{
    if (classId == CLSID_ImagingFactory) {
        if (outer)
            return CLASS_E_NOAGGREGATION;
        return CreateImagingFactory(interfaceId, object);
    }
    return CoCreateInstance(classId, outer, context, interfaceId, object);
}
