// Files that no cabinet can be made of: a message that names them, and an older cabinet stays.
#include "tests/tools/Packaging.h"

#include <gtest/gtest.h>

class CabinetRefusalTest : public testing::Test
{
  protected:
    TempFolder files;
    TempFolder output;
    const Bytes old = {'o', 'l', 'd'};
    std::string cabinet = output.Put("Quorvane.cab", old);

    void SetUp() override { PutStandIns(files); }

    void ExpectRefused(const std::string& words)
    {
        const ProgramResult result = MakeCabinet(files, cabinet);
        EXPECT_EQ(result.exitCode, 1);
        ExpectOneLine(result.errors, "packaging");
        EXPECT_NE(result.errors.find(words), std::string::npos) << result.errors;
        EXPECT_EQ(ReadAll(cabinet), old);
        EXPECT_EQ(output.Names(), std::vector<std::string>{"Quorvane.cab"});
    }
};

TEST_F(CabinetRefusalTest, MissingFiles)
{
    std::filesystem::remove(files.Path("Quorvane.exe"));
    ExpectRefused("Quorvane.exe is missing");
    PutStandIns(files);
    std::filesystem::remove(files.Path("Quorvane.zrs"));
    std::filesystem::create_directory(files.Path("Quorvane.zrs"));
    ExpectRefused("Quorvane.zrs is missing");
}

TEST_F(CabinetRefusalTest, EmptyFiles)
{
    for (const char* name : {"Quorvane.exe", "Quorvane.zrs"}) {
        PutStandIns(files);
        files.Put(name, {});
        ExpectRefused(std::string(name) + " is empty");
    }
}

TEST_F(CabinetRefusalTest, MoreThanACabinetCanHold)
{
    // Sparse: it takes no room on the disk.
    std::filesystem::resize_file(files.Path("Quorvane.zrs"), 65535ull * 32768 - 100000 + 1);
    ExpectRefused("the files are larger than a cabinet can be (2147450881 bytes, 2147450880 allowed)");
}

TEST_F(CabinetRefusalTest, AFolderThatIsNotThere)
{
    const ProgramResult result = MakeCabinet(files, output.Path("Quorvane.cab/x.cab"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("packaging: cannot write "), std::string::npos) << result.errors;
    EXPECT_EQ(ReadAll(cabinet), old);
}

// A list that does not match the cabinet, and a damaged cabinet, must not pass for good.
TEST_F(CabinetRefusalTest, TheCheckOfAMadeCabinetFindsFaults)
{
    const TempFolder work;
    ASSERT_EQ(MakeCabinet(files, cabinet).exitCode, 0);
    const std::string right = "QUORVANE.000\nQUORVANE.002\tx\nQUORVANE.001\ty\n_setup.xml";
    EXPECT_EQ(RunPackaging({"check_cabinet", work.Path(""), cabinet, right}).exitCode, 0);
    const std::string order = "QUORVANE.000\nQUORVANE.001\ty\nQUORVANE.002\tx\n_setup.xml";
    EXPECT_EQ(RunPackaging({"check_cabinet", work.Path(""), cabinet, order}).exitCode, 1);
    Bytes damaged = ReadAll(cabinet);
    damaged.at(damaged.size() / 2) ^= 1;
    output.Put("Quorvane.cab", damaged);
    EXPECT_EQ(RunPackaging({"check_cabinet", work.Path(""), cabinet, right}).exitCode, 1);
}
