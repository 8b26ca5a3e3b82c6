// The sections [heap] and [process] of a profile.
#include "platform/pc/common/ProfileSections.h"
#include "platform/pc/common/ProfileText.h"

namespace handheld {

// "100, 200 | 300": two heaps.
void AddHeapScript(Profile& profile, const std::wstring& program, std::wstring_view value)
{
    HeapScript script{program, {}};
    for (bool moreHeaps = true; moreHeaps;) {
        std::wstring_view heap = NextPiece(value, L'|', moreHeaps);
        std::vector<unsigned>& blocks = script.heaps.emplace_back();
        for (bool more = !heap.empty(); more;) {
            const std::optional<unsigned> size = Number<unsigned>(NextPiece(heap, L',', more));
            if (!size) {
                return;
            }
            blocks.push_back(*size);
        }
    }
    profile.heapScripts.push_back(std::move(script));
}

// "refuse-open, no-heaps": what is refused, in any order.
void AddProcessScript(Profile& profile, const std::wstring& program, std::wstring_view value)
{
    static constexpr struct
    {
        const wchar_t* word;
        bool ProcessScript::*refusal;
    } words[] = {
        {L"refuse-open", &ProcessScript::refusesOpen},
        {L"refuse-end", &ProcessScript::refusesEnd},
        {L"no-module-snapshot", &ProcessScript::noModuleSnapshot},
        {L"no-modules", &ProcessScript::noModules},
        {L"no-module-paths", &ProcessScript::noModulePaths},
        {L"no-heaps", &ProcessScript::noHeaps},
        {L"hidden", &ProcessScript::hidden},
    };
    ProcessScript script{.program = program};
    for (bool more = true; more;) {
        const std::wstring written = Lower(NextPiece(value, L',', more));
        bool known = false;
        for (const auto& word : words) {
            if (written == word.word) {
                script.*word.refusal = true;
                known = true;
            }
        }
        if (!known) {
            return;
        }
    }
    profile.processScripts.push_back(std::move(script));
}

} // namespace handheld
