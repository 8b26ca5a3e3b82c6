// The calls that led to where the guest is, without looking at its stack's content.
#pragma once

#include "tools/runner/machine/Value.h"

#include <vector>

namespace runner {

class CallTrail
{
    struct Call
    {
        Address from;
        Address stackPointer;
    };
    std::vector<Call> calls;

  public:
    void Add(Address from, Address stackPointer)
    {
        Drop(stackPointer);
        calls.push_back({from, stackPointer});
    }
    // A function that called has pushed its return address, so all calls from this far down are over.
    void Drop(Address stackPointer)
    {
        while (!calls.empty() && calls.back().stackPointer <= stackPointer) {
            calls.pop_back();
        }
    }
    // The last one first.
    std::vector<Address> Places() const
    {
        std::vector<Address> places;
        for (auto call = calls.rbegin(); call != calls.rend(); ++call) {
            places.push_back(call->from);
        }
        return places;
    }
};

} // namespace runner
