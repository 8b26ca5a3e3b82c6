// Where the program keeps its settings.
#include "keys/SettingsKey.h"

static constexpr uint32_t enciphered = 32; // characters; a shorter path would end in zeros

static constexpr uint16_t Mask(uint32_t position)
{
    return static_cast<uint16_t>(0x9E37 * (position + 3));
}

namespace {
struct SCipher
{
    uint16_t units[enciphered];
};
} // namespace

static consteval SCipher Encipher(const wchar_t (&path)[enciphered + 1])
{
    SCipher cipher = {};
    for (uint32_t i = 0; i < enciphered; i++) {
        cipher.units[i] = static_cast<uint16_t>(path[i] ^ Mask(i));
    }
    return cipher;
}

// Volatile, or a compiler may decipher it and leave the text in the executable.
static const volatile SCipher cipher = Encipher(L"Software\\Quorvane\\HomeKeySetting");

const wchar_t* MakeSettingsKeyPath(SettingsKeyPath& path)
{
    for (uint32_t i = 0; i < enciphered; i++) {
        path[i] = static_cast<wchar_t>(cipher.units[i] ^ Mask(i));
    }
    path[enciphered] = 0;
    return path;
}
