// The files of the cabinet in the order they must have: the binary instructions first, the installed files by
// descending number, the XML instructions last.
#include "tools/cabheader/CabinetMembers.h"

std::string ListCabinetMembers(const Installation& installation)
{
    std::string list = installation.CabinetFile(0) + "\n";
    for (std::size_t number = installation.files.size(); number > 0; number--) {
        list += installation.CabinetFile(number) + "\t" + installation.files[number - 1] + "\n";
    }
    return list + xmlInstructionsFile + "\n";
}
