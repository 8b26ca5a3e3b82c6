// The form of a plain function: a letter for the result, then one for each parameter ("u hut"). Spaces do not
// count.
//
//   u   a word                          h   a handle: the host's is the word with its sign
//   i   a number with a sign            o?  an object behind a cookie; ? is the letter of its CookieKind
//   g   a handle that the guest has to give back: a result gives it, a parameter takes it back
//   m   a module of which resources are taken
//   c   index of a system colour        r   a brush, or such an index plus one
//   t   text, read                      s   text or the number of a resource
//   T   room for text; the next parameter says how many characters
//   b   bytes, read; the next parameter says how many
//   p4  a structure of 4 bytes, read    q4  one that is written when the call succeeds
//   x4  one that is read and written
//
// Pointers may be null. Results: u, i, h, g, o? as above, where 0 is a failure; e, a word where only 0 is
// none; d, a word that says nothing of success; t, a pointer into what the guest handed over; v, nothing.
#pragma once

#include "tools/runner/machine/Value.h"

#include <string>
#include <vector>

namespace runner {

class Form
{
  public:
    struct Part
    {
        char letter;
        Word size = 0; // of a structure
        char kind = 0; // of a cookie
    };

  private:
    std::vector<Part> parts;

  public:
    // Reads as far as the form is well; IsGood tells.
    explicit Form(const char* form);

    bool IsGood() const { return good; }
    const Part& Result() const { return parts.front(); }
    std::size_t Parameters() const { return parts.size() - 1; }
    const Part& Parameter(std::size_t index) const { return parts[index + 1]; }

    static constexpr std::size_t mostParameters = 14;

  private:
    bool good = false;

    bool Read(const char* form);
};

} // namespace runner
