// Messages about refused inputs.
#include "tools/common/Refusal.h"

Refusal Refusal::WithFile(const std::string& file, const std::string& reason)
{
    return Refusal(Printable(file) + ": " + reason);
}

std::string Printable(const std::string& text)
{
    std::string result = text;
    for (char& c : result) {
        const unsigned char code = static_cast<unsigned char>(c);
        if (code < 0x20 || code == 0x7f) {
            c = '?';
        }
    }
    return result;
}
