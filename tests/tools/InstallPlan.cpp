// What both kinds of instructions have in common.
#include "tests/tools/InstallPlan.h"

#include <algorithm>

std::string FolderDeed(const std::string& path)
{
    return "folder " + path;
}

std::string FileDeed(const std::string& path, std::uint32_t number)
{
    return "file " + path + " is number " + std::to_string(number);
}

std::string ShortcutDeed(const std::string& path, const std::string& target)
{
    return "shortcut " + path + " to " + target;
}

InstallPlan Sorted(InstallPlan plan)
{
    std::sort(plan.begin(), plan.end());
    return plan;
}
