// COM for a substitute's own needs, whether or not the calling thread has started it.
#pragma once

#include <objbase.h>

namespace handheld {

// The PC's COM is started on this thread for as long as the object lives: with a single-threaded apartment,
// as the PC's shell wants it, unless the thread has another one already.
class ComScope
{
  public:
    ComScope();
    ~ComScope();
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

    // Null when there is no such object.
    template <class Interface>
    static Interface* Create(const CLSID& classId, const IID& interfaceId)
    {
        return static_cast<Interface*>(CreateObject(classId, interfaceId));
    }

  private:
    static void* CreateObject(const CLSID& classId, const IID& interfaceId);

    bool started;
};

} // namespace handheld
