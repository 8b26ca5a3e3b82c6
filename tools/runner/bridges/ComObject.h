// COM objects of the host's, which the guest holds as objects of its own: a pointer to a table of methods,
// each of which is a trap.
#pragma once

#include "tools/runner/bridges/Host.h"

#include <string>
#include <vector>

namespace runner {

// The methods of an interface, in the order of their table. Null: one that is not carried across.
class ComMethods
{
    std::string name;
    std::vector<Bridge::Handler> handlers;
    mutable Address table = 0; // in the guest's memory, once it is there

  public:
    // The second and third are AddRef and Release; null there means those that every object has.
    ComMethods(const char* itsInterface, std::vector<Bridge::Handler> itsHandlers)
        : name(itsInterface), handlers(std::move(itsHandlers))
    {}

    Address Table(Guest& guest) const;
};

// An object of the guest's for one of the host's, which it owns from now on. owned: a block of the guest's
// heap that goes with it, or 0.
Address GiveComObject(Call& call, IUnknown* host, const ComMethods& methods, Address owned = 0);

// The host's object of the method's first parameter.
IUnknown* HostComObject(Call& call);
template <class Interface>
Interface* ComObject(Call& call)
{
    return static_cast<Interface*>(HostComObject(call));
}

} // namespace runner
