// The shell's allocator: the process's heap, so that the PC's COM need not be loaded for it.
#include "platform/pc/ceshell/Allocator.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // COM's interfaces have none

namespace {

class Allocator final : public IMalloc
{
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(const IID& interfaceId, void** object) override
    {
        if (!object) {
            return E_POINTER;
        }
        const bool known = interfaceId == IID_IUnknown || interfaceId == IID_IMalloc;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    void* STDMETHODCALLTYPE Alloc(SIZE_T size) override { return HeapAlloc(GetProcessHeap(), 0, size); }
    void* STDMETHODCALLTYPE Realloc(void* block, SIZE_T size) override
    {
        if (!block) {
            return Alloc(size);
        }
        if (size == 0) {
            Free(block);
            return nullptr;
        }
        return HeapReAlloc(GetProcessHeap(), 0, block, size);
    }
    void STDMETHODCALLTYPE Free(void* block) override { HeapFree(GetProcessHeap(), 0, block); }
    SIZE_T STDMETHODCALLTYPE GetSize(void* block) override
    {
        return block ? HeapSize(GetProcessHeap(), 0, block) : static_cast<SIZE_T>(-1);
    }
    int STDMETHODCALLTYPE DidAlloc(void* block) override
    {
        return block && HeapValidate(GetProcessHeap(), 0, block) ? 1 : 0;
    }
    void STDMETHODCALLTYPE HeapMinimize() override {}
};

} // namespace

#pragma GCC diagnostic pop

IMalloc* ShellAllocator()
{
    static Allocator allocator;
    return &allocator;
}
