// The image that was built.
#include "tests/device/image/ImportTables.h"
#include "tests/device/image/PatchedImage.h"
#include "tests/device/image/ResourceTree.h"

#include <algorithm>
#include <gtest/gtest.h>

TEST(BuiltImageTest, HasNoFault)
{
    EXPECT_EQ(PatchedImage().Faults(), std::vector<std::string>());
}

// The checks have something to look at.
TEST(BuiltImageTest, ImportsFunctionsOfEveryLibrary)
{
    std::vector<std::string> names;
    std::size_t functions = 0;
    for (const ImportLibrary& library : ReadImportTables(PatchedImage().View()).libraries) {
        names.push_back(library.name);
        functions += library.lookups.size();
    }
    std::ranges::sort(names);
    const std::vector<std::string> expected = {"aygshell.dll", "ceshell.dll", "coredll.dll", "ole32.dll",
                                               "toolhelp.dll"};
    EXPECT_EQ(names, expected);
    EXPECT_GE(functions, 80u);
}

TEST(BuiltImageTest, HasItsResources)
{
    EXPECT_GE(ReadResources(PatchedImage().View()).size(), 20u);
}
