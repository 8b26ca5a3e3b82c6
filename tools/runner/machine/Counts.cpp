// Sums by part, import and function.
#include "tools/runner/machine/Counts.h"

#include "tools/runner/machine/Symbols.h"

#include <algorithm>

namespace runner {

Counts::Section::Section(Counts& owner, std::string partName)
    : counts(owner), name(std::move(partName)), instructions(owner.processor.Count()),
      imports(owner.importCalls)
{}

Counts::Section::~Section()
{
    Sum& sum = counts.sections[name];
    sum.times++;
    sum.last = counts.processor.Count() - instructions;
    sum.instructions += sum.last;
    sum.imports += counts.importCalls - imports;
    sum.most = std::max(sum.most, sum.last);
}

void Counts::AddImport(const std::string& name)
{
    importCalls++;
    imports[name]++;
}

std::vector<std::pair<std::string, std::uint64_t>>
Counts::Functions(const Symbols& symbols, const std::vector<std::uint64_t>& before) const
{
    std::map<std::string, std::uint64_t> sums;
    const std::vector<std::uint64_t>& now = processor.ProfileCounts();
    for (std::size_t i = 0; i < now.size(); i++) {
        const std::uint64_t times = now[i] - (i < before.size() ? before[i] : 0);
        if (times != 0) {
            sums[symbols.FunctionOf(processor.ProfileBegin() + static_cast<Word>(i * sizeof(Word)))] += times;
        }
    }
    std::vector<std::pair<std::string, std::uint64_t>> functions(sums.begin(), sums.end());
    std::ranges::stable_sort(functions, std::ranges::greater(),
                             &std::pair<std::string, std::uint64_t>::second);
    return functions;
}

} // namespace runner
