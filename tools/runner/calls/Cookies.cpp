// What the host names with 64 bits, as words that the guest can hold.
#include "tools/runner/calls/Cookies.h"

namespace runner {

static constexpr Word step = 0x10;

// Of handles: predefined registry keys, the pseudo items of trees, the invalid handle.
static bool IsConstant(Word word)
{
    return word == 0 || word >= 0xFFFF0000 || (word & 0xFFFFFF00) == 0x80000000;
}

static Cookies::Host Extended(Word word)
{
    return static_cast<Cookies::Host>(static_cast<std::int64_t>(static_cast<std::int32_t>(word)));
}

const char* NameOf(CookieKind kind)
{
    switch (kind) {
    case CookieKind::Com:
        return "COM object";
    case CookieKind::Search:
        return "search for files";
    case CookieKind::Heap:
        return "heap";
    case CookieKind::ImageList:
        return "list of images";
    case CookieKind::Key:
        return "registry key";
    case CookieKind::ItemList:
        return "shell's item list";
    case CookieKind::Module:
        return "library";
    case CookieKind::File:
        return "file";
    case CookieKind::Process:
        return "process";
    case CookieKind::Snapshot:
        return "snapshot";
    case CookieKind::TreeItem:
        return "tree's item";
    }
    return "object";
}

Word Cookies::Give(CookieKind kind, Host host, Address caller)
{
    const Word low = static_cast<Word>(host);
    if (Extended(low) == host && IsConstant(low)) {
        return low;
    }
    const auto [place, isNew] = known.try_emplace({kind, host}, next);
    if (isNew) {
        entries[next] = {kind, host, caller};
        next += step;
    }
    return place->second;
}

Cookies::Answer Cookies::Take(CookieKind kind, Word cookie) const
{
    if (IsConstant(cookie)) {
        return {State::Known, Extended(cookie)};
    }
    const auto found = entries.find(cookie);
    if (found == entries.end()) {
        return {State::Unknown, 0};
    }
    const Entry& entry = found->second;
    const State state = entry.kind != kind ? State::OtherKind
                        : entry.forgotten  ? State::Forgotten
                                           : State::Known;
    return {state, entry.host};
}

void Cookies::Forget(CookieKind kind, Word cookie)
{
    const auto found = entries.find(cookie);
    if (found != entries.end() && found->second.kind == kind && !found->second.forgotten) {
        found->second.forgotten = true;
        known.erase({kind, found->second.host});
    }
}

std::map<CookieKind, std::size_t> Cookies::LiveByKind() const
{
    std::map<CookieKind, std::size_t> counts;
    for (const auto& [object, cookie] : known) {
        counts[object.first]++;
    }
    return counts;
}

std::vector<Cookies::Entry> Cookies::LiveEntries() const
{
    std::vector<Entry> live;
    for (const auto& [cookie, entry] : entries) {
        if (!entry.forgotten) {
            live.push_back(entry);
        }
    }
    return live;
}

} // namespace runner
