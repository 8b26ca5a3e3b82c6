// The form of a plain function, read.
#include "tools/runner/calls/Form.h"

#include <cstring>

namespace runner {

Form::Form(const char* form) : good(Read(form)) {}

bool Form::Read(const char* form)
{
    static constexpr char results[] = "uihgoedtv";
    static constexpr char parameters[] = "uihgomcrtsTbpqx";
    for (const char* c = form; *c != '\0';) {
        if (*c == ' ') {
            c++;
            continue;
        }
        Part part{*c};
        if (!std::strchr(parts.empty() ? results : parameters, *c++)) {
            return false;
        }
        if (part.letter == 'o') {
            if (!std::strchr("CFHIKLMOPST", *c) || *c == '\0') {
                return false;
            }
            part.kind = *c++;
        } else if (std::strchr("pqx", part.letter)) {
            for (; *c >= '0' && *c <= '9'; c++) {
                part.size = part.size * 10 + static_cast<Word>(*c - '0');
            }
            if (part.size == 0) {
                return false;
            }
        }
        parts.push_back(part);
    }
    if (parts.empty() || Parameters() > mostParameters) {
        return false;
    }
    // Those that have their size in the next parameter.
    for (std::size_t i = 0; i < Parameters(); i++) {
        if (std::strchr("Tb", Parameter(i).letter) &&
            (i + 1 == Parameters() || !std::strchr("ui", Parameter(i + 1).letter))) {
            return false;
        }
    }
    return true;
}

} // namespace runner
