// Runs a program in its own process.
#include "tests/tools/Program.h"

#include "tests/tools/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

static void Redirect(const std::string& path, int descriptor)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (file < 0 || dup2(file, descriptor) < 0) {
        _exit(126);
    }
    close(file);
}

static void LimitFiles(std::size_t largestFile)
{
    // Without the signal the write itself fails.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{largestFile, largestFile};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
        _exit(126);
    }
}

ProgramResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                         std::size_t largestFile)
{
    const TempFolder folder;
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);

    const pid_t child = fork();
    if (child < 0) {
        throw std::runtime_error("cannot start a process");
    }
    if (child == 0) {
        Redirect(folder.Path("output"), STDOUT_FILENO);
        Redirect(folder.Path("errors"), STDERR_FILENO);
        // A program that waits for something is ended, not waited for.
        alarm(20);
        if (largestFile != 0) {
            LimitFiles(largestFile);
        }
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child) {
        throw std::runtime_error("cannot wait for the program");
    }
    const Bytes output = ReadAll(folder.Path("output"));
    const Bytes errors = ReadAll(folder.Path("errors"));
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, std::string(output.begin(), output.end()),
            std::string(errors.begin(), errors.end())};
}

void ExpectOneLine(const std::string& message, const std::string& program)
{
    EXPECT_EQ(message.rfind(program + ": ", 0), 0u) << message;
    EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 1) << message;
    EXPECT_TRUE(!message.empty() && message.back() == '\n') << message;
}
