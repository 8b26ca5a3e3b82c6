// What is installed on a device: the facts from which both kinds of instructions are written.
#pragma once

#include "tools/cabheader/DevicePath.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct OsVersion
{
    std::uint16_t major = 0;
    std::uint16_t minor = 0;

    auto operator<=>(const OsVersion&) const = default;
};

struct Shortcut
{
    DevicePath path;
    std::size_t file; // index into Installation::files
};

struct Installation
{
    // Says that the program adapts to square and to turned screens: a device warns of them for lower numbers.
    static constexpr std::uint32_t newestBuild = 0xE0000000;

    std::string provider;
    std::string name;
    OsVersion oldest;
    OsVersion newest;
    std::string cabinet; // name of all numbered files in the cabinet
    DevicePath folder;
    std::vector<std::string> files; // number n of the cabinet is files[n - 1]
    std::vector<Shortcut> shortcuts;

    // By this name the device lists it for removal.
    std::string FullName() const { return provider + " " + name; }
    // "QUORVANE.001"; number 0 is the binary instructions.
    std::string CabinetFile(std::size_t number) const;
};
