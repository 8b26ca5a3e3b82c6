// ComScope: the PC's COM library is loaded when the first one begins.
#include "platform/pc/common/ComScope.h"

#include "platform/pc/common/SystemFunction.h"

namespace handheld {

static constexpr wchar_t library[] = L"ole32.dll";

ComScope::ComScope()
{
    static auto* const initialize = SystemFunction<decltype(CoInitializeEx)>(library, "CoInitializeEx");
    started = initialize && SUCCEEDED(initialize(nullptr, COINIT_APARTMENTTHREADED));
}

ComScope::~ComScope()
{
    if (started) {
        static auto* const end = SystemFunction<decltype(CoUninitialize)>(library, "CoUninitialize");
        end();
    }
}

void* ComScope::CreateObject(const CLSID& classId, const IID& interfaceId)
{
    static auto* const create = SystemFunction<decltype(CoCreateInstance)>(library, "CoCreateInstance");
    void* object = nullptr;
    return create && SUCCEEDED(create(classId, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &object))
               ? object
               : nullptr;
}

} // namespace handheld
