// The words of complaints.
#include "tests/device/image/Complaints.h"

#include <sstream>

void Complaints::Require(bool good, const std::string& complaint)
{
    if (!good) {
        sentences.push_back(complaint);
    }
}

void Complaints::RequireEqual(const std::string& what, std::uint64_t actual, std::uint64_t expected)
{
    std::ostringstream complaint;
    complaint << std::hex << what << " is 0x" << actual << ", not 0x" << expected;
    Require(actual == expected, complaint.str());
}
