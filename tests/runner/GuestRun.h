// One run of a program for the device by the runner, which lies beside the tests under the program's name.
#pragma once

#include <string>

class GuestRun
{
    unsigned long exitCode = 0;
    std::string log;

  public:
    // Name: without ".exe". Fails the test when the program does not end.
    GuestRun(const std::wstring& name, const std::wstring& arguments);

    unsigned long ExitCode() const { return exitCode; }
    // Findings and counts, as the runner wrote them.
    const std::string& Log() const { return log; }
    bool Says(const std::string& text) const { return log.find(text) != std::string::npos; }
};
