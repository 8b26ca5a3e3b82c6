// Runs cabheader on a description and gives what it has written.
#pragma once

#include "tests/tools/Program.h"
#include "tests/tools/TempFolder.h"

#include <string>
#include <vector>

// A description that is accepted, line by line, so that a test can replace one.
std::vector<std::string> GoodDescription();
// The same with its line of this key replaced; an empty replacement leaves it out.
std::string DescriptionWith(const std::string& key, const std::string& replacement);
std::string Joined(const std::vector<std::string>& lines);

ProgramResult RunCabheader(const std::vector<std::string>& arguments);

struct Instructions
{
    Bytes binary;
    std::string xml;
};

// Throws when cabheader fails or writes anything but TEST.000 and _setup.xml.
Instructions WriteInstructions(const std::string& description);
