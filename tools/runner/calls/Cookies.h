// What the host names with 64 bits, as words that the guest can hold.
#pragma once

#include "tools/runner/machine/Value.h"

#include <map>
#include <utility>
#include <vector>

namespace runner {

// A letter each, which stands behind an 'o' in the form of a plain function too.
enum class CookieKind : char
{
    Com = 'C',
    Search = 'F',
    Heap = 'H',
    ImageList = 'I',
    Key = 'K',
    ItemList = 'L',
    Module = 'M',
    File = 'O',
    Process = 'P',
    Snapshot = 'S',
    TreeItem = 'T',
};

// The text that a finding names it with.
const char* NameOf(CookieKind kind);

class Cookies
{
  public:
    using Host = std::uint64_t;
    enum class State
    {
        Known,
        Forgotten,
        OtherKind,
        Unknown,
    };
    struct Answer
    {
        State state;
        Host host;
    };
    struct Entry
    {
        CookieKind kind;
        Host host;
        Address place; // that got it first
        bool forgotten = false;
    };

  private:
    std::map<Word, Entry> entries;
    std::map<std::pair<CookieKind, Host>, Word> known;
    Word next = 0xA0000010;

  public:
    // Null and the values that are constants (-1, and their like) stand for themselves. One object has one
    // cookie for as long as it is not forgotten, and no cookie is used twice.
    Word Give(CookieKind kind, Host host, Address place = 0);
    Answer Take(CookieKind kind, Word cookie) const;
    // The object is closed: a later use is told from that of a value that never was one.
    void Forget(CookieKind kind, Word cookie);
    std::size_t Live() const { return known.size(); }
    std::map<CookieKind, std::size_t> LiveByKind() const;
    // In the order in which they were given.
    std::vector<Entry> LiveEntries() const;
};

} // namespace runner
