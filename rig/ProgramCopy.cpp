// ProgramCopy: the program's files in a folder of their own, for tests that spoil one of them.
#include "rig/ProgramCopy.h"

#include "rig/ChildProcess.h"

#include <filesystem>
#include <system_error>

namespace rig {

static bool BelongsToProgram(const std::filesystem::path& file)
{
    return file.stem() == L"Quorvane" || file.extension() == L".dll";
}

ProgramCopy::ProgramCopy()
{
    namespace fs = std::filesystem;
    static int copies = 0;
    std::error_code error;
    const fs::path from = ProgramFolder();
    const fs::path to =
        fs::temp_directory_path(error) /
        (L"Quorvane-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++copies));
    folder = to.wstring();
    // Process numbers come again in the next session, and a folder stays when its program outlives the test.
    fs::remove_all(to, error);
    fs::create_directories(to, error);
    for (const auto& entry : fs::directory_iterator(from, error)) {
        if (!error && BelongsToProgram(entry.path())) {
            fs::copy_file(entry.path(), to / entry.path().filename(), fs::copy_options::overwrite_existing,
                          error);
        }
        if (error) {
            return;
        }
    }
    fs::copy(from / L"profiles", to / L"profiles", fs::copy_options::recursive, error);
    complete = !error;
}

ProgramCopy::~ProgramCopy()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

} // namespace rig
