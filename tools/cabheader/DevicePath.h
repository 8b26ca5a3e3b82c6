// A place on the device, below one of its standard folders.
#pragma once

#include <string>
#include <vector>

class DevicePath
{
    unsigned base = 0; // the n of %CEn%
    std::vector<std::string> parts;

  public:
    static constexpr unsigned highestBase = 17;

    // Of the form %CE1%\folder\name. Refuses anything else and names that no device takes.
    static DevicePath Parse(const std::string& text);

    unsigned Base() const { return base; }
    // "%CE1%"
    std::string BaseText() const;
    // What is below the standard folder; may be empty.
    const std::vector<std::string>& Parts() const { return parts; }
    std::string Text() const;
    DevicePath Parent() const;
    // Refuses a path that would be too long on the device.
    DevicePath Child(const std::string& name) const;
};
