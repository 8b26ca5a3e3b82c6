// RunTool: what main does in each of the build's own programs.
#pragma once

#include "tools/common/Refusal.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

// Runs the call that the arguments describe. The exit code: 0, 1 for what was refused, 2 for a call of the
// wrong form.
template <class Call>
int RunTool(const char* name, int argc, char** argv, void (*run)(const Call&))
{
    try {
        run(Call::Parse(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc)));
        return 0;
    } catch (const UsageError& error) {
        std::fprintf(stderr, "%s: %s (see %s --help)\n", name, error.what(), name);
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", name, error.what());
        return 1;
    }
}

// To the standard output; refused when that cannot be written.
inline void Print(const std::string& text)
{
    if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) {
        throw Refusal("the standard output cannot be written");
    }
}
