// Runs a program of the build as the build does and gives what came of it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct ProgramResult
{
    int exitCode; // -1: it did not end by itself
    std::string output;
    std::string errors;
};

// largestFile: the size in bytes at which writing a file fails, as on a full disk; 0 for no limit.
ProgramResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                         std::size_t largestFile = 0);

// A message is one line and begins with the program's name.
void ExpectOneLine(const std::string& message, const std::string& program);
