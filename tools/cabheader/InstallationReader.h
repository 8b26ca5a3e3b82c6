// Reads the description of an installation: lines of the form "key = value", and comments that begin with
// '#'.
#pragma once

#include "tools/cabheader/Installation.h"

#include <set>
#include <string>

class InstallationReader
{
    Installation result;
    std::set<std::string> keys;  // given so far
    std::set<std::string> paths; // installed so far, in lower case

  public:
    // Throws Refusal for a description that is incomplete, contradicts itself or cannot be written.
    static Installation Read(const std::string& text);

  private:
    void ReadLine(const std::string& line);
    void Set(const std::string& key, const std::string& value);
    void AddFile(const std::string& name);
    void AddShortcut(const std::string& value);
    void AddPath(const DevicePath& path);
    void CheckComplete() const;
};
