// What the substitute's COM objects share: one interface, a count of references, and their own end.
#pragma once

#include "platform/ce.h"

#include <atomic>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Object is the final class, whose destructor releases what it holds; a new object has one reference.
template <typename Object, typename Interface, const IID& interfaceOfObject>
class ComObject : public Interface
{
    std::atomic<ULONG> references = 1;

  protected:
    ComObject() = default;
    ~ComObject() = default;

  public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(const IID& interfaceId, void** object) override
    {
        if (!object) {
            return E_POINTER;
        }
        *object = nullptr;
        if (interfaceId != IID_IUnknown && interfaceId != interfaceOfObject) {
            return E_NOINTERFACE;
        }
        AddRef();
        *object = static_cast<Interface*>(this);
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --references;
        if (left == 0) {
            delete static_cast<Object*>(this);
        }
        return left;
    }
};

#pragma GCC diagnostic pop
