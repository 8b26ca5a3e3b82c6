// COM objects of the host's, as objects of the guest's.
#include "tools/runner/bridges/ComObject.h"

#include <map>

namespace runner {

namespace {

struct GuestObject
{
    Word methods;
    Word cookie;
};

struct Holding
{
    Word references;
    Address owned;
};

} // namespace

// By their places in the guest's memory.
static std::map<Address, Holding>& Holdings()
{
    static std::map<Address, Holding> holdings;
    return holdings;
}

// Objects lie outside the guest's heap, whose counts are the guest's alone.
static Address PlaceInShelf(Guest& guest, Word size)
{
    static constexpr Word shelfSize = 0x10000;
    static constexpr Address shelfOffset = 0x01000000; // behind the command line
    static Word used = 0;
    const Address shelf = guest.machine.layout.freeBegin + shelfOffset;
    if (used == 0) {
        guest.machine.memory.Map(shelf, shelfSize, CanRead);
    }
    if (used + size > shelfSize) {
        guest.Misuse("more COM objects than the runner has room for");
    }
    used += size;
    return shelf + used - size;
}

static Holding& HoldingOf(Call& call)
{
    const auto found = Holdings().find(call.Argument(0));
    if (found == Holdings().end()) {
        call.guest.Misuse("no COM object, or one that was released", call.Argument(0));
    }
    return found->second;
}

IUnknown* HostComObject(Call& call)
{
    HoldingOf(call);
    const auto object = call.RecordAt<GuestObject>(0);
    return reinterpret_cast<IUnknown*>(
        static_cast<ULONG_PTR>(call.ObjectOf(object.Get(&GuestObject::cookie), CookieKind::Com)));
}

static Word DoAddRef(Call& call)
{
    return ++HoldingOf(call).references;
}

static Word DoRelease(Call& call)
{
    IUnknown* host = HostComObject(call);
    Holding& holding = HoldingOf(call);
    if (--holding.references > 0) {
        return holding.references;
    }
    host->Release();
    call.guest.cookies.Forget(CookieKind::Com, call.RecordAt<GuestObject>(0).Get(&GuestObject::cookie));
    if (holding.owned != 0) {
        call.guest.machine.heap.Free(holding.owned, call.guest.machine.processor.Place());
    }
    Holdings().erase(call.Argument(0));
    return 0;
}

static Word DoNothing(Call& call)
{
    call.guest.Misuse("a method that is not carried across");
}

Address ComMethods::Table(Guest& guest) const
{
    static constexpr std::size_t addRef = 1;
    static constexpr std::size_t release = 2;
    if (table != 0) {
        return table;
    }
    table = PlaceInShelf(guest, static_cast<Word>(handlers.size()) * wordSize);
    for (std::size_t i = 0; i < handlers.size(); i++) {
        const Bridge::Handler handler = handlers[i]    ? handlers[i]
                                        : i == addRef  ? DoAddRef
                                        : i == release ? DoRelease
                                                       : DoNothing;
        const std::string label = name + " method " + std::to_string(i);
        const Address trap = guest.AddTrap(label, {"", handler});
        std::memcpy(guest.machine.memory.Host(table + static_cast<Word>(i) * wordSize), &trap, sizeof trap);
    }
    return table;
}

Address GiveComObject(Call& call, IUnknown* host, const ComMethods& methods, Address owned)
{
    const Address place = PlaceInShelf(call.guest, sizeof(GuestObject));
    const GuestObject object = {methods.Table(call.guest), CookieOf(call, CookieKind::Com, host)};
    std::memcpy(call.guest.machine.memory.Host(place), &object, sizeof object);
    Holdings()[place] = {1, owned};
    return place;
}

} // namespace runner
