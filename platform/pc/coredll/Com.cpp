// COM: start-up of a thread, and the classes that only a device has. Every start of the program starts COM
// for the pictures it may show later. Here that is only noted; the PC's library is loaded, and started for
// the thread, when the first object is made.
#include "platform/pc/coredll/Com.h"

#include "platform/pc/common/SystemFunction.h"
#include "platform/pc/coredll/Imaging.h"

#include <objbase.h>

static constexpr wchar_t comLibrary[] = L"ole32.dll";

struct ThreadCom
{
    ULONG starts;    // that have not been ended
    DWORD flags;     // of the first
    bool hasStarted; // the PC's COM, for all of them together
};

static thread_local ThreadCom threadCom;

extern "C" HRESULT WINAPI ce_CoInitializeEx(void* reserved, DWORD flags)
{
    if (reserved) {
        return E_INVALIDARG;
    }
    if (threadCom.starts++ > 0) {
        return S_FALSE;
    }
    // The device knows one threading model. On the PC flags 0 would mean the multi-threaded one, in which the
    // shell refuses to open shortcuts.
    threadCom.flags = flags == 0 ? static_cast<DWORD>(COINIT_APARTMENTTHREADED) : flags;
    return S_OK;
}

extern "C" void WINAPI ce_CoUninitialize()
{
    if (threadCom.starts == 0 || --threadCom.starts > 0 || !threadCom.hasStarted) {
        return;
    }
    threadCom.hasStarted = false;
    static auto* const uninitialize =
        handheld::SystemFunction<decltype(CoUninitialize)>(comLibrary, "CoUninitialize");
    uninitialize();
}

bool HasStartedCom()
{
    return threadCom.starts > 0;
}

// A thread that has the other model already keeps it; its objects can be made all the same.
static void StartForThread()
{
    static auto* const initialize =
        handheld::SystemFunction<decltype(CoInitializeEx)>(comLibrary, "CoInitializeEx");
    if (HasStartedCom() && !threadCom.hasStarted) {
        threadCom.hasStarted = SUCCEEDED(initialize(nullptr, threadCom.flags));
    }
}

HRESULT CreateComObject(const CLSID& classId, const IID& interfaceId, void** object, IUnknown* outer,
                        DWORD context)
{
    static auto* const create =
        handheld::SystemFunction<decltype(CoCreateInstance)>(comLibrary, "CoCreateInstance");
    StartForThread();
    return create(classId, outer, context, interfaceId, object);
}

extern "C" HRESULT WINAPI ce_CoCreateInstance(const CLSID& classId, IUnknown* outer, DWORD context,
                                              const IID& interfaceId, void** object)
{
    if (classId == CLSID_ImagingFactory) {
        return outer ? CLASS_E_NOAGGREGATION : CreateImagingFactory(interfaceId, object);
    }
    return CreateComObject(classId, interfaceId, object, outer, context);
}
