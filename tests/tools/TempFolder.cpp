// A folder for one test's files.
#include "tests/tools/TempFolder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>

TempFolder::TempFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tools-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    folder = pattern;
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

std::string TempFolder::Put(const std::string& name, const Bytes& content) const
{
    const std::string path = Path(name);
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    if (!file.flush()) {
        throw std::runtime_error("cannot write " + path);
    }
    return path;
}

std::vector<std::string> TempFolder::Names() const
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

Bytes ReadAll(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot open " + path);
    }
    return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}
