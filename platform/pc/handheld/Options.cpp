// The command line of handheld.exe.
#include "platform/pc/handheld/Options.h"

const wchar_t optionsHelp[] = L"Usage: handheld.exe [--profile FILE] [--ready FILE] | --wait | --end\n"
                              L"  --profile FILE  be the handheld that this file describes\n"
                              L"  --ready FILE    create this file as soon as the screen stands\n"
                              L"  --wait          return as soon as a handheld is up; fail after 30 seconds\n"
                              L"  --end           end the handheld that is up\n"
                              L"  --keys          list the handheld's keys\n";

bool ParseOptions(const std::vector<std::wstring>& arguments, Options& options)
{
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& argument = arguments[i];
        if (argument == L"--profile" && i + 1 < arguments.size()) {
            options.profile = arguments[++i];
        } else if (argument == L"--ready" && i + 1 < arguments.size()) {
            options.ready = arguments[++i];
        } else if (argument == L"--wait") {
            options.action = Options::Action::Wait;
        } else if (argument == L"--end") {
            options.action = Options::Action::End;
        } else if (argument == L"--keys") {
            options.action = Options::Action::ListKeys;
        } else if (argument == L"--help") {
            options.action = Options::Action::Help;
        } else {
            return false;
        }
    }
    return true;
}
