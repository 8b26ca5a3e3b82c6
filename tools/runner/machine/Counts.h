// How much work was done in which part of the program: instructions and calls of imports.
#pragma once

#include "tools/runner/machine/Processor.h"

#include <map>
#include <string>

namespace runner {

class Counts
{
  public:
    struct Sum
    {
        std::uint64_t times = 0;
        std::uint64_t instructions = 0; // with all that the part called
        std::uint64_t imports = 0;
        std::uint64_t most = 0; // instructions of one time
        std::uint64_t last = 0;
    };

    // From here to the end of its life is one time of the part, for instance a message to a class of windows.
    class Section
    {
        Counts& counts;
        std::string name;
        std::uint64_t instructions;
        std::uint64_t imports;

      public:
        Section(Counts& owner, std::string partName);
        ~Section();
        Section(const Section&) = delete;
        Section& operator=(const Section&) = delete;
    };

  private:
    const Processor& processor;
    std::map<std::string, Sum> sections;
    std::map<std::string, std::uint64_t> imports;
    std::uint64_t importCalls = 0;

  public:
    explicit Counts(const Processor& counted) : processor(counted) {}
    Counts(const Counts&) = delete;
    Counts& operator=(const Counts&) = delete;

    void AddImport(const std::string& name);
    std::uint64_t ImportCalls() const { return importCalls; }
    const std::map<std::string, Sum>& Sections() const { return sections; }
    const std::map<std::string, std::uint64_t>& Imports() const { return imports; }
    // Instructions by function, the most first. The processor's profile has to be on. before: an earlier
    // state of it, whose instructions do not count.
    std::vector<std::pair<std::string, std::uint64_t>>
    Functions(const Symbols& symbols, const std::vector<std::uint64_t>& before = {}) const;
};

} // namespace runner
