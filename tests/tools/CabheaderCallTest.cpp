// How cabheader answers calls of the wrong form, help, the list of members, and files it cannot use.
#include "tests/tools/Cabheader.h"

#include <gtest/gtest.h>

static std::string PutGood(const TempFolder& folder)
{
    const std::string text = Joined(GoodDescription()) + "file = b.dat\n";
    return folder.Put("description", Bytes(text.begin(), text.end()));
}

TEST(CabheaderCallTest, HelpShowsTheUsageAndSucceeds)
{
    const ProgramResult result = RunCabheader({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output.rfind("Usage: cabheader DESCRIPTION FOLDER\n", 0), 0u) << result.output;
}

TEST(CabheaderCallTest, WrongCallsEndWithTwoAndWriteNothing)
{
    const TempFolder folder;
    const std::string file = PutGood(folder);
    const std::vector<std::vector<std::string>> calls = {{},
                                                         {""},
                                                         {file},
                                                         {file, ""},
                                                         {"", folder.Path("")},
                                                         {"--members"},
                                                         {"--members", ""},
                                                         {"--members", file, file},
                                                         {"--unknown", file},
                                                         {file, folder.Path(""), file}};
    for (const auto& call : calls) {
        SCOPED_TRACE(call.empty() ? "no arguments" : call.front());
        const ProgramResult result = RunCabheader(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        ExpectOneLine(result.errors, "cabheader");
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"description"});
    }
}

TEST(CabheaderCallTest, MembersAreListedInTheOrderOfTheCabinet)
{
    const TempFolder folder;
    const ProgramResult result = RunCabheader({"--members", PutGood(folder)});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output, "TEST.000\nTEST.002\tb.dat\nTEST.001\ta.exe\n_setup.xml\n");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"description"});
}

TEST(CabheaderCallTest, ADescriptionThatCannotBeReadIsNamed)
{
    const TempFolder folder;
    for (const std::string& file : {folder.Path("missing"), folder.Path("")}) {
        const ProgramResult result = RunCabheader({file, folder.Path("")});
        EXPECT_EQ(result.exitCode, 1);
        ExpectOneLine(result.errors, "cabheader");
        EXPECT_EQ(result.errors.rfind("cabheader: " + file + ": ", 0), 0u) << result.errors;
        EXPECT_TRUE(folder.Names().empty());
    }
}

TEST(CabheaderCallTest, AFolderThatCannotBeWrittenToIsNamed)
{
    const TempFolder folder;
    const std::string file = PutGood(folder);
    for (const std::string& output : {folder.Path("missing"), file}) {
        const ProgramResult result = RunCabheader({file, output});
        EXPECT_EQ(result.exitCode, 1);
        ExpectOneLine(result.errors, "cabheader");
        EXPECT_NE(result.errors.find(output + "/TEST.000: cannot be written: "), std::string::npos)
            << result.errors;
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"description"});
    }
}
