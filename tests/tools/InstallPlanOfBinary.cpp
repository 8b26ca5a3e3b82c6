// Follows the binary instructions on paper.
#include "tests/tools/InstallPlan.h"

#include <map>
#include <stdexcept>

namespace {

// Reads fields one after the other.
class Reader
{
    const Bytes& bytes;
    std::size_t at;

  public:
    Reader(const Bytes& content, std::size_t offset) : bytes(content), at(offset) {}

    std::uint32_t U16()
    {
        at += 2;
        return bytes.at(at - 2) | static_cast<std::uint32_t>(bytes.at(at - 1)) << 8;
    }

    std::uint32_t U32()
    {
        const std::uint32_t low = U16();
        return low | U16() << 16;
    }

    std::string Text(std::size_t length)
    {
        std::string text;
        for (; length > 1; length--) {
            text += static_cast<char>(bytes.at(at++));
        }
        if (bytes.at(at++) != 0 || text.find('\0') != std::string::npos) {
            throw std::runtime_error("a text of the wrong length");
        }
        return text;
    }

    std::string CountedText() { return Text(U16()); }
};

using Names = std::map<std::uint32_t, std::string>;

} // namespace

// A list of numbered strings, put together as a path.
static std::string Path(Reader& reader, const Names& strings)
{
    std::string path;
    for (std::uint32_t left = reader.U16() / 2; left > 1; left--) {
        path += (path.empty() ? "" : "\\") + strings.at(reader.U16());
    }
    if (reader.U16() != 0) {
        throw std::runtime_error("a list without an end");
    }
    return path;
}

namespace {

class BinaryPlan
{
    const Bytes& bytes;
    Names strings;
    Names folders;
    Names files;

  public:
    InstallPlan plan;

    explicit BinaryPlan(const Bytes& instructions) : bytes(instructions)
    {
        if (At(0).U32() != 0x4543534D || At(8).U32() != bytes.size()) {
            throw std::runtime_error("no signature, or a wrong length");
        }
        ReadHeader();
        ForEach(0, [this](Reader& record) {
            const std::uint32_t number = record.U16();
            strings[number] = record.CountedText();
        });
        plan.push_back(FolderDeed(strings.at(1)));
        ForEach(1, [this](Reader& record) {
            const std::uint32_t number = record.U16();
            folders[number] = Path(record, strings);
        });
        ForEach(2, [this](Reader& record) { ReadFile(record); });
        ForEach(5, [this](Reader& record) { ReadLink(record); });
    }

  private:
    Reader At(std::size_t offset) const { return Reader(bytes, offset); }

    std::string Version(std::size_t offset) const
    {
        return std::to_string(At(offset).U32()) + "." + std::to_string(At(offset + 4).U32());
    }

    std::string HeaderText(std::size_t offset) const
    {
        return At(At(offset).U16()).Text(At(offset + 2).U16());
    }

    void ReadHeader()
    {
        plan.push_back("application " + HeaderText(88) + " " + HeaderText(84));
        plan.push_back("versions " + Version(24) + " to " + Version(32));
        plan.push_back("builds " + std::to_string(At(40).U32()) + " to " + std::to_string(At(44).U32()));
        plan.push_back("registry " + std::to_string(At(54).U16()) + " " + std::to_string(At(56).U16()));
    }

    // Each record of a section.
    template <typename Read>
    void ForEach(std::size_t section, Read read)
    {
        Reader record = At(At(60 + 4 * section).U32());
        for (std::uint32_t left = At(48 + 2 * section).U16(); left > 0; left--) {
            read(record);
        }
    }

    void ReadFile(Reader& record)
    {
        const std::uint32_t number = record.U16();
        const std::string folder = folders.at(record.U16());
        record.U16();
        record.U32();
        files[number] = folder + "\\" + record.CountedText();
        plan.push_back(FileDeed(files[number], number));
    }

    void ReadLink(Reader& record)
    {
        record.U32();
        const std::string base = "%CE" + std::to_string(record.U16()) + "%";
        const std::string target = files.at(record.U16());
        if (record.U16() != 1) {
            throw std::runtime_error("a link to no file");
        }
        plan.push_back(ShortcutDeed(base + "\\" + Path(record, strings), target));
    }
};

} // namespace

InstallPlan PlanOfBinary(const Bytes& instructions)
{
    return Sorted(BinaryPlan(instructions).plan);
}
