// Descriptions that cabheader refuses: exit code, one line of message, nothing written.
#include "tests/tools/Cabheader.h"

#include <gtest/gtest.h>

static void ExpectDescriptionRefused(const std::string& description, const std::string& words)
{
    SCOPED_TRACE(description);
    const TempFolder folder;
    const std::string file = folder.Put("description", Bytes(description.begin(), description.end()));
    const ProgramResult result = RunCabheader({file, folder.Path("")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    ExpectOneLine(result.errors, "cabheader");
    EXPECT_EQ(result.errors.rfind("cabheader: " + file + ": ", 0), 0u) << result.errors;
    EXPECT_NE(result.errors.find(words), std::string::npos) << "wanted: " << words << "\n" << result.errors;
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"description"});
}

static void ExpectLineRefused(const std::string& line, const std::string& words)
{
    ExpectDescriptionRefused(Joined(GoodDescription()) + line + "\n", "line 8: " + words);
}

static void ExpectValueRefused(const std::string& key, const std::string& value, const std::string& words)
{
    ExpectDescriptionRefused(DescriptionWith(key, key + " = " + value), words);
}

TEST(DescriptionRefusalTest, TheGoodOneIsAccepted)
{
    EXPECT_FALSE(WriteInstructions(Joined(GoodDescription())).binary.empty());
    // Comments, blanks and the line ends of Windows mean nothing.
    const std::string other = "# comment\r\n\r\n \t\n" + DescriptionWith("name", "  name\t=Thing \r");
    EXPECT_EQ(WriteInstructions(other).binary, WriteInstructions(Joined(GoodDescription())).binary);
}

TEST(DescriptionRefusalTest, EveryKeyIsNeededAndIsGivenOnce)
{
    for (const std::string& line : GoodDescription()) {
        const std::string key = line.substr(0, line.find(' '));
        // A file cannot stand before its folder, so its line is refused first.
        const std::string words =
            key == "folder" ? "a file needs the folder above it" : "'" + key + "' is missing";
        ExpectDescriptionRefused(DescriptionWith(key, ""), words);
        if (key != "file") {
            ExpectLineRefused(line, "'" + key + "' is given twice");
        }
    }
    ExpectDescriptionRefused("", "'provider' is missing");
}

TEST(DescriptionRefusalTest, LinesOfAnotherForm)
{
    ExpectLineRefused("something", "not of the form KEY = VALUE");
    ExpectLineRefused("= x", "unknown key ''");
    ExpectLineRefused("Name = x", "unknown key 'Name'");
    ExpectLineRefused("colour = red", "unknown key 'colour'");
}

TEST(DescriptionRefusalTest, TextsThatNoInstallerTakes)
{
    ExpectValueRefused("provider", "", "line 1: a text is empty");
    ExpectValueRefused("provider", std::string(31, 'p'), "is longer than 30 characters");
    ExpectValueRefused("name", std::string(41, 'n'), "is longer than 40 characters");
    ExpectValueRefused("name", "Caf\xc3\xa9", "has characters that are not ASCII");
    ExpectValueRefused("name", "a\tb", "has characters that are not ASCII");
    ExpectValueRefused("name", std::string("a\0b", 3), "has characters that are not ASCII");
    // The longest ones are taken.
    EXPECT_FALSE(
        WriteInstructions(DescriptionWith("provider", "provider = " + std::string(30, 'p'))).xml.empty());
    EXPECT_FALSE(WriteInstructions(DescriptionWith("name", "name = " + std::string(40, 'n'))).xml.empty());
}

TEST(DescriptionRefusalTest, Versions)
{
    for (const char* version :
         {"", "5", "5.", ".0", "5.0.1", "v5.0", "-5.0", "5.-1", "5.0 ce", "65536.0", "5.65536"}) {
        ExpectValueRefused("oldest", version, "is not a version such as 5.0");
    }
    ExpectValueRefused("oldest", "7.0", "the newest version is older than the oldest");
    ExpectValueRefused("newest", "4.99", "the newest version is older than the oldest");
}

TEST(DescriptionRefusalTest, CabinetNames)
{
    ExpectValueRefused("cabinet", "NINECHARS", "is longer than 8 characters");
    for (const char* name : {"lower", "A B", "A.B", "..", "A/B", "A\\B", "A~1"}) {
        ExpectValueRefused("cabinet", name, "has characters other than A to Z, 0 to 9 and _");
    }
}

TEST(DescriptionRefusalTest, FoldersAreBelowAStandardFolder)
{
    for (const char* folder :
         {"", "%CE%", "%CE0%", "%CE01%", "%CE18%", "%CEx%", "%CE1", "CE1", "%ce1%", "%CE-1%",
          R"(\Program Files)", R"(%CE1%x\One)", "%CE1%/One", "%CE99999999999999999999%"}) {
        ExpectValueRefused("folder", folder, "is not one of %CE1% to %CE17%");
    }
    ExpectValueRefused("folder", R"(%CE1%\)", "a text is empty");
    ExpectValueRefused("folder", R"(%CE1%\\One)", "a text is empty");
    for (const char* folder : {R"(%CE1%\ One)", R"(%CE1%\One \Two)"}) {
        ExpectValueRefused("folder", folder, "begins or ends with a blank");
    }
    ExpectValueRefused("folder", R"(%CE1%\..)", "cannot be a file name");
    ExpectValueRefused("folder", R"(%CE1%\%CE2%)", "cannot be a file name");
    EXPECT_FALSE(WriteInstructions(DescriptionWith("folder", "folder = %CE17%")).xml.empty());
}

TEST(DescriptionRefusalTest, FileNames)
{
    for (const char* name :
         {"a/b", R"(a\b)", "a:b", "a*", "a?", "a\"", "a<b", "a>b", "a|b", "%CE1%", ".", "..", "a."}) {
        ExpectLineRefused(std::string("file = ") + name, "'" + std::string(name) + "' cannot be a file name");
    }
    ExpectLineRefused("file = \xff.exe", "'\xff.exe' has characters that are not ASCII");
    ExpectLineRefused("file = " + std::string(129, 'f'),
                      "'" + std::string(129, 'f') + "' is longer than 128 characters");
    // A path as a whole must be shorter than a device's longest: 6 + 94 + 1 + 99 characters are not too many.
    const std::string path = R"(%CE1%\)" + std::string(94, 'f') + "\\" + std::string(95, 'f');
    const std::string target = ".lnk > a.exe\n";
    EXPECT_FALSE(WriteInstructions(Joined(GoodDescription()) + "shortcut = " + path + target).xml.empty());
    ExpectLineRefused("shortcut = " + path + "f" + target,
                      "'" + path + "f.lnk' is longer than 200 characters");
}

TEST(DescriptionRefusalTest, NothingIsInstalledTwice)
{
    ExpectLineRefused("file = a.exe", R"('%CE1%\One\a.exe' is installed twice)");
    ExpectLineRefused("file = A.EXE", R"('%CE1%\One\A.EXE' is installed twice)");
    const std::string both = Joined(GoodDescription()) + "file = b.lnk\n";
    ExpectDescriptionRefused(both + R"(shortcut = %CE1%\one\B.lnk > a.exe)",
                             R"('%CE1%\one\B.lnk' is installed twice)");
    // The same name elsewhere is another file.
    EXPECT_FALSE(WriteInstructions(both + R"(shortcut = %CE11%\b.lnk > a.exe)").xml.empty());
}

TEST(DescriptionRefusalTest, Shortcuts)
{
    ExpectLineRefused(R"(shortcut = %CE11%\a.lnk)", "a shortcut is of the form PATH > FILE");
    ExpectLineRefused(R"(shortcut = %CE11%\a.lnk > b.exe)", "no file 'b.exe' is installed above this line");
    ExpectLineRefused(R"(shortcut = %CE11%\a.exe > a.exe)", "the name of a shortcut must end in .lnk");
    ExpectLineRefused(R"(shortcut = %CE11% > a.exe)", "the name of a shortcut must end in .lnk");
    ExpectLineRefused(R"(shortcut = a.lnk > a.exe)", "'a.lnk' is not one of %CE1% to %CE17%");
    EXPECT_FALSE(
        WriteInstructions(Joined(GoodDescription()) + R"(shortcut = %CE11%\A.LNK > a.exe)").xml.empty());
}

TEST(DescriptionRefusalTest, TheNumberOfASetUpLibraryIsNotUsed)
{
    std::string description = Joined(GoodDescription());
    for (int i = 2; i <= 998; i++) {
        description += "file = " + std::to_string(i) + "\n";
    }
    EXPECT_NE(WriteInstructions(description).xml.find(R"("TEST.998")"), std::string::npos);
    ExpectDescriptionRefused(description + "file = 999\n", "line 1005: more than 998 files");
}

// The instructions count links in two bytes.
TEST(DescriptionRefusalTest, MoreShortcutsThanTheInstructionsCanCount)
{
    static constexpr int mostLinks = 0xFFFF;
    static constexpr int digit = 41; // 41 * 41 * 41 paths are enough, of few different parts
    std::string description = Joined(GoodDescription());
    for (int i = 0; i <= mostLinks; i++) {
        description += R"(shortcut = %CE11%\)" + std::to_string(i / digit / digit) + "\\" +
                       std::to_string(i / digit % digit) + "\\" + std::to_string(i % digit) +
                       ".lnk > a.exe\n";
    }
    const TempFolder folder;
    const std::string file = folder.Put("description", Bytes(description.begin(), description.end()));
    const ProgramResult result = RunCabheader({file, folder.Path("")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("the number 65536 does not fit in 2 bytes"), std::string::npos)
        << result.errors;
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"description"});
}
