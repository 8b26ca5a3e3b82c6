// What ends the packer early: an input it refuses, or a command line it does not understand.
#pragma once

#include <stdexcept>
#include <string>

// The reason, without the file's name; WithFile puts the name in front.
class Refusal : public std::runtime_error
{
  public:
    using std::runtime_error::runtime_error;

    // Control characters in a name become '?', so that the message stays one line.
    static Refusal WithFile(const std::string& file, const std::string& reason);
};

class UsageError : public std::runtime_error
{
  public:
    using std::runtime_error::runtime_error;
};

std::string Printable(const std::string& text);
