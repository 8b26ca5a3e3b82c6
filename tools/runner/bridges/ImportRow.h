// A function of the lists of imports; the build makes ImportRows.h of them.
#pragma once

namespace runner {

struct ImportRow
{
    const char* library; // of the device
    const char* name;
    unsigned number;        // 0: by name
    bool isLate;            // looked up when the program runs
    const char* substitute; // the host's library that has it
    const char* pcName;     // how it is called there
};

} // namespace runner
