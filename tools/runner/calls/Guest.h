// The program in the machine, as its host sees it: its imports and how they are served, calls into its code.
#pragma once

#include "tools/runner/calls/Bridge.h"
#include "tools/runner/calls/Cookies.h"
#include "tools/runner/calls/Form.h"
#include "tools/runner/calls/GivenHandles.h"
#include "tools/runner/machine/Counts.h"
#include "tools/runner/machine/Machine.h"
#include "tools/runner/machine/Symbols.h"

#include <deque>
#include <string>
#include <vector>

namespace runner {

// What is told of the run beside its findings.
class Journal
{
  public:
    virtual ~Journal() = default;
    virtual void Write(const std::string& line) = 0;
    // The guest ends its process.
    virtual void WriteEnd(Word exitCode) = 0;
};

// Told before the guest waits for its next message.
class WaitWatcher
{
  public:
    virtual ~WaitWatcher() = default;
    virtual void BeforeWait() = 0;
};

class Guest
{
  public:
    // A function of the host's, called with as many parameters as it has.
    using HostFunction = std::uint64_t (*)(std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                                           std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                                           std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                                           std::uint64_t, std::uint64_t);

  private:
    struct Trap
    {
        std::string name;
        Bridge::Handler handler; // null for a plain function
        HostFunction host;       // of a plain function, and its form
        Form form;
        std::uint64_t data;
    };
    std::deque<Trap> traps;    // which stay where they are when more are added
    std::vector<Word> running; // the traps that are being served, the last one innermost
    bool isStackOdd = false;

  public:
    Machine machine;
    Cookies cookies;
    GivenHandles handles;
    Symbols symbols;
    Counts counts;
    Address image = 0;               // the module that the guest calls itself
    std::uint64_t hostResources = 0; // the module that has the guest's resources on the host
    Journal* journal = nullptr;      // is told of the end
    Journal* trace = nullptr;        // null: calls are not told
    WaitWatcher* watcher = nullptr;  // null: nobody wants to know

    explicit Guest(FindingSink& findings, const Layout& layout = {});
    Guest(const Guest&) = delete;
    Guest& operator=(const Guest&) = delete;

    // The trap's address, which the guest calls. data: what the handler finds as Call::Data.
    Address AddTrap(const std::string& name, const Bridge& bridge, HostFunction host = nullptr,
                    std::uint64_t data = 0);

    // Runs the guest's entry. It returns what the entry does, if it does.
    Word Enter(Address entry, Word a, Word b, Word c, Word d);
    // Calls a function of the guest's, for instance a window's procedure. Every other call finds a stack that
    // is aligned to 4 bytes only.
    Word CallBack(Address function, Word a = 0, Word b = 0, Word c = 0, Word d = 0);
    // Lowers the guest's stack pointer by at least so much, to an alignment that changes from call to call.
    Address LowerStack(Word size);

    // What is being served, for messages.
    std::string CurrentImport() const;
    // Ends the run: something that the runner does not bring across the border, or should not have met.
    [[noreturn]] void Misuse(const std::string& text, Address address = 0);

  private:
    // As a caller does that promises nothing else.
    void PassArguments(Word a, Word b, Word c, Word d);
    Word RunFrom(Address place);
    Address Serve(Word trap);
    void CheckKept(const Registers& before, Address function);
};

} // namespace runner
