// Messages that the guest sends or passes on: their structures, brought across to the host.
#pragma once

#include "tools/runner/bridges/Host.h"

#include <span>

namespace runner {

// A message on its way from the guest.
class Outgoing
{
  public:
    // Who gets it: a window, a window's procedure, the default procedure.
    using Deliver = LRESULT (*)(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  private:
    Deliver deliver;
    WNDPROC procedure;

  public:
    Call& call;
    HWND window;
    UINT message;
    Word wParam;
    Word lParam;

    Outgoing(Call& itsCall, Deliver itsDeliver, WNDPROC itsProcedure, HWND itsWindow, UINT itsMessage, Word w,
             Word l)
        : deliver(itsDeliver), procedure(itsProcedure), call(itsCall), window(itsWindow), message(itsMessage),
          wParam(w), lParam(l)
    {}

    LRESULT DeliverWith(WPARAM hostWParam, LPARAM hostLParam) const
    {
        return deliver(procedure, window, message, hostWParam, hostLParam);
    }
    // With the structure in place of lParam. wParam: a number with a sign.
    Word With(const void* structure) const
    {
        return static_cast<Word>(DeliverWith(SignedWParam(), reinterpret_cast<LPARAM>(structure)));
    }
    WPARAM SignedWParam() const
    {
        return static_cast<WPARAM>(static_cast<LONG_PTR>(static_cast<LONG>(wParam)));
    }
    template <class T>
    Record<T> RecordAtLParam() const
    {
        return Record<T>(call.guest.machine.memory, lParam);
    }
};

// How a message with a structure is brought across: a row of a table.
struct MessageBridge
{
    UINT message;
    Word (*handler)(const Outgoing& out);
};
using MessageBridges = std::span<const MessageBridge>;

MessageBridges ListViewMessages();
MessageBridges TreeViewMessages();
MessageBridges ControlMessages();
MessageBridges WindowMessages();

// Messages without a row are words.
Word SendFromGuest(const Outgoing& out);

} // namespace runner
