// What is installed on a device.
#include "tools/cabheader/Installation.h"

std::string Installation::CabinetFile(std::size_t number) const
{
    static constexpr std::size_t digits = 3;
    const std::string text = std::to_string(number);
    return cabinet + "." + std::string(digits - text.size(), '0') + text;
}
