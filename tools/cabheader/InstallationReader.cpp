// Reads the description of an installation.
#include "tools/cabheader/InstallationReader.h"

#include "tools/cabheader/Names.h"
#include "tools/common/Refusal.h"

#include <algorithm>
#include <charconv>
#include <sstream>

// What an installer takes: public limits of the two texts, and 999 is the number of a set-up library.
static constexpr std::size_t longestProvider = 30;
static constexpr std::size_t longestName = 40;
static constexpr std::size_t mostFiles = 998;

static std::string Trimmed(const std::string& text)
{
    static const char* const blanks = " \t\r";
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

static OsVersion ParseVersion(const std::string& text)
{
    OsVersion version;
    const char* const end = text.data() + text.size();
    const auto major = std::from_chars(text.data(), end, version.major);
    if (major.ec == std::errc() && major.ptr != end && *major.ptr == '.') {
        const auto minor = std::from_chars(major.ptr + 1, end, version.minor);
        if (minor.ec == std::errc() && minor.ptr == end) {
            return version;
        }
    }
    throw Refusal("'" + Printable(text) + "' is not a version such as 5.0");
}

Installation InstallationReader::Read(const std::string& text)
{
    InstallationReader reader;
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); number++) {
        try {
            reader.ReadLine(Trimmed(line));
        } catch (const Refusal& refusal) {
            throw Refusal("line " + std::to_string(number) + ": " + refusal.what());
        }
    }
    reader.CheckComplete();
    return reader.result;
}

void InstallationReader::ReadLine(const std::string& line)
{
    if (line.empty() || line[0] == '#') {
        return;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) {
        throw Refusal("not of the form KEY = VALUE");
    }
    const std::string key = Trimmed(line.substr(0, equals));
    if (!keys.insert(key).second && key != "file" && key != "shortcut") {
        throw Refusal("'" + Printable(key) + "' is given twice");
    }
    Set(key, Trimmed(line.substr(equals + 1)));
}

void InstallationReader::Set(const std::string& key, const std::string& value)
{
    if (key == "provider") {
        CheckText(value, longestProvider);
        result.provider = value;
    } else if (key == "name") {
        CheckText(value, longestName);
        result.name = value;
    } else if (key == "oldest") {
        result.oldest = ParseVersion(value);
    } else if (key == "newest") {
        result.newest = ParseVersion(value);
    } else if (key == "cabinet") {
        CheckCabinetName(value);
        result.cabinet = value;
    } else if (key == "folder") {
        result.folder = DevicePath::Parse(value);
    } else if (key == "file") {
        AddFile(value);
    } else if (key == "shortcut") {
        AddShortcut(value);
    } else {
        throw Refusal("unknown key '" + Printable(key) + "'");
    }
}

void InstallationReader::AddFile(const std::string& name)
{
    if (!keys.contains("folder")) {
        throw Refusal("a file needs the folder above it");
    }
    if (result.files.size() == mostFiles) {
        throw Refusal("more than " + std::to_string(mostFiles) + " files");
    }
    AddPath(result.folder.Child(name));
    result.files.push_back(name);
}

void InstallationReader::AddShortcut(const std::string& value)
{
    const std::size_t arrow = value.find('>');
    if (arrow == std::string::npos) {
        throw Refusal("a shortcut is of the form PATH > FILE");
    }
    const DevicePath path = DevicePath::Parse(Trimmed(value.substr(0, arrow)));
    if (path.Parts().empty() || !LowerCase(path.Parts().back()).ends_with(".lnk")) {
        throw Refusal("the name of a shortcut must end in .lnk");
    }
    const std::string target = Trimmed(value.substr(arrow + 1));
    const auto file = std::find(result.files.begin(), result.files.end(), target);
    if (file == result.files.end()) {
        throw Refusal("no file '" + Printable(target) + "' is installed above this line");
    }
    AddPath(path);
    result.shortcuts.push_back({path, static_cast<std::size_t>(file - result.files.begin())});
}

void InstallationReader::AddPath(const DevicePath& path)
{
    if (!paths.insert(LowerCase(path.Text())).second) {
        throw Refusal("'" + path.Text() + "' is installed twice");
    }
}

void InstallationReader::CheckComplete() const
{
    for (const char* key : {"provider", "name", "oldest", "newest", "cabinet", "folder", "file"}) {
        if (!keys.contains(key)) {
            throw Refusal(std::string("'") + key + "' is missing");
        }
    }
    if (result.newest < result.oldest) {
        throw Refusal("the newest version is older than the oldest");
    }
}
