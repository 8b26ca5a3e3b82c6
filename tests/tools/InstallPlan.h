// What instructions make an installer do, one sorted line for each deed, so that both kinds can be compared.
#pragma once

#include "tests/tools/TempFolder.h"

#include <cstdint>
#include <string>
#include <vector>

using InstallPlan = std::vector<std::string>;

// Both throw for instructions that cannot be followed.
InstallPlan PlanOfBinary(const Bytes& instructions);
InstallPlan PlanOfXml(const std::string& instructions);

// What is recorded as the program's folder.
std::string FolderDeed(const std::string& path);
std::string FileDeed(const std::string& path, std::uint32_t number);
std::string ShortcutDeed(const std::string& path, const std::string& target);
InstallPlan Sorted(InstallPlan plan);
