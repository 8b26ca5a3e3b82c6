// The binary instructions: a header of 100 bytes with the places of all that follows, two texts, and the
// sections. The layout is the one that the documentation of cabextract describes as Windows CE's.
#include "tools/cabheader/BinaryInstructions.h"

#include "tools/cabheader/HeaderBytes.h"
#include "tools/cabheader/StringTable.h"

#include <initializer_list>

static constexpr std::size_t headerSize = 100;
static constexpr std::size_t signature = 0x4543534D; // "MSCE"
static constexpr std::size_t usualWord = 1;          // of unknown meaning, as all installers have it
static constexpr std::size_t processorArm = 2577;
static constexpr std::size_t folderNumber = 1;
static constexpr std::size_t overwriteAlways = 0x40000000; // whatever the file's date is
static constexpr std::size_t linkToFile = 1;

namespace {

struct Section
{
    std::size_t count = 0;
    HeaderBytes bytes;
};

} // namespace

// The standard folder counts as the first part of a path.
static Section FolderSection(const Installation& installation, StringTable& strings)
{
    Section section{1, {}};
    std::vector<std::size_t> path = {strings.Number(installation.folder.BaseText())};
    for (const std::size_t number : strings.Numbers(installation.folder.Parts())) {
        path.push_back(number);
    }
    section.bytes.Add16(folderNumber);
    section.bytes.AddCountedList(path);
    return section;
}

static Section FileSection(const Installation& installation)
{
    Section section{installation.files.size(), {}};
    for (std::size_t i = 0; i < installation.files.size(); i++) {
        section.bytes.Add16(i + 1);
        section.bytes.Add16(folderNumber);
        section.bytes.Add16(i + 1);
        section.bytes.Add32(overwriteAlways);
        section.bytes.AddCountedText(installation.files[i]);
    }
    return section;
}

// Here the standard folder is a number of its own.
static Section LinkSection(const Installation& installation, StringTable& strings)
{
    Section section{installation.shortcuts.size(), {}};
    for (std::size_t i = 0; i < installation.shortcuts.size(); i++) {
        const Shortcut& shortcut = installation.shortcuts[i];
        section.bytes.Add16(i + 1);
        section.bytes.Add16(0);
        section.bytes.Add16(shortcut.path.Base());
        section.bytes.Add16(shortcut.file + 1);
        section.bytes.Add16(linkToFile);
        section.bytes.AddCountedList(strings.Numbers(shortcut.path.Parts()));
    }
    return section;
}

static void Add32s(HeaderBytes& bytes, std::initializer_list<std::size_t> numbers)
{
    for (const std::size_t number : numbers) {
        bytes.Add32(number);
    }
}

static void Add16s(HeaderBytes& bytes, std::initializer_list<std::size_t> numbers)
{
    for (const std::size_t number : numbers) {
        bytes.Add16(number);
    }
}

std::vector<std::uint8_t> WriteBinaryInstructions(const Installation& installation)
{
    StringTable strings;
    // The installer records the first string as the program's folder, whatever refers to it.
    strings.Number(installation.folder.Text());
    const Section folders = FolderSection(installation, strings);
    const Section files = FileSection(installation);
    const Section links = LinkSection(installation, strings);
    // Behind the folders and links, which give the strings their numbers.
    const Section texts{strings.Count(), strings.Bytes()};
    const Section registryKeys;
    const Section registryValues;
    const std::vector<const Section*> sections = {&texts,        &folders,        &files,
                                                  &registryKeys, &registryValues, &links};

    const std::size_t nameOffset = headerSize;
    const std::size_t providerOffset = nameOffset + installation.name.size() + 1;
    const std::size_t sectionsOffset = providerOffset + installation.provider.size() + 1;
    std::size_t length = sectionsOffset;
    for (const Section* section : sections) {
        length += section->bytes.Size();
    }

    HeaderBytes result;
    Add32s(result, {signature, 0, length, 0, usualWord, processorArm});
    Add32s(result, {installation.oldest.major, installation.oldest.minor});
    Add32s(result, {installation.newest.major, installation.newest.minor});
    Add32s(result, {0, Installation::newestBuild});
    for (const Section* section : sections) {
        result.Add16(section->count);
    }
    std::size_t offset = sectionsOffset;
    for (const Section* section : sections) {
        result.Add32(offset);
        offset += section->bytes.Size();
    }
    Add16s(result, {nameOffset, installation.name.size() + 1});
    Add16s(result, {providerOffset, installation.provider.size() + 1});
    // There are no unsupported platforms, and the last two words are of unknown meaning.
    Add16s(result, {sectionsOffset, 0, 0, 0});

    result.AddText(installation.name);
    result.AddText(installation.provider);
    for (const Section* section : sections) {
        result.Append(section->bytes);
    }
    return result.Bytes();
}
