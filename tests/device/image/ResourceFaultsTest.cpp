// Every promise of the resources, broken.
#include "tests/device/image/PatchedImage.h"
#include "tests/device/image/ResourceTree.h"

#include <gtest/gtest.h>

class ResourceFaultsTest : public testing::Test
{
  protected:
    PatchedImage image;
    const std::uint32_t tree = image.View().Directory(2).rva;

    std::uint32_t Word(std::uint32_t place) const { return image.View().U32At(tree + place); }
    // The place in the tree of a table's row for this id.
    std::uint32_t RowOf(std::uint32_t table, std::uint32_t id) const
    {
        const std::uint32_t counts = Word(table + 12);
        const std::uint32_t end = table + 16 + 8 * ((counts & 0xFFFF) + (counts >> 16));
        for (std::uint32_t row = table + 16; row < end; row += 8) {
            if (Word(row) == id) {
                return row;
            }
        }
        ADD_FAILURE() << "no row " << id;
        return table;
    }
    std::uint32_t ItemRow(std::uint32_t type, std::uint32_t id) const
    {
        return RowOf(Word(RowOf(0, type) + 4) & 0x7FFFFFFF, id);
    }
    // The place of the words that say where the data of an item's first language is.
    std::uint32_t DataOf(std::uint32_t type, std::uint32_t id) const
    {
        const std::uint32_t languages = Word(ItemRow(type, id) + 4) & 0x7FFFFFFF;
        return Word(languages + 16 + 4);
    }
    void Put(std::uint32_t place, std::uint32_t value) { image.Put32At(tree + place, value); }
};

TEST_F(ResourceFaultsTest, MissingItemIsFound)
{
    Put(ItemRow(4, 132), 999);
    ExpectOnlyFault(image, "there is no menu 132");
}

TEST_F(ResourceFaultsTest, EveryItemIsAskedFor)
{
    const char* const faults[] = {"menu 102",         "menu 132",           "menu 134",
                                  "menu 136",         "menu 173",           "dialog 125",
                                  "dialog 133",       "block of strings 1", "block of strings 7",
                                  "accelerators 2",   "soft-key bar 111",   "soft-key bar 170",
                                  "soft-key bar 171", "soft-key bar 172",   "soft-key bar 173",
                                  "soft-key bar 174", "icon 101",           "version 1"};
    for (const std::uint32_t type : {4u, 5u, 6u, 9u, 10u, 14u, 16u}) {
        Put(RowOf(0, type), 900 + type);
    }
    for (const std::string fault : faults) {
        ExpectFault(image, "there is no " + fault);
    }
    EXPECT_EQ(image.Faults().size(), std::size(faults));
}

TEST_F(ResourceFaultsTest, DataOutsideItsSectionIsFound)
{
    const ImageRange section = image.View().Section(".rsrc").memory;
    Put(DataOf(5, 125), section.rva + section.size / pageSize * pageSize + pageSize);
    ExpectOnlyFault(image, "resource 5-125 is outside .rsrc");
}

TEST_F(ResourceFaultsTest, DataThatIsLongerThanItsSectionIsFound)
{
    Put(DataOf(5, 125) + 4, image.View().Section(".rsrc").memory.size);
    ExpectOnlyFault(image, "resource 5-125 is outside .rsrc");
}

TEST_F(ResourceFaultsTest, DataThatIsNotAlignedIsFound)
{
    Put(DataOf(16, 1), Word(DataOf(16, 1)) - 2);
    ExpectOnlyFault(image, "resource 16-1 is not aligned to 4");
}

TEST_F(ResourceFaultsTest, EmptyDataIsFound)
{
    Put(DataOf(4, 102) + 4, 0);
    ExpectOnlyFault(image, "resource 4-102 is empty");
}

TEST_F(ResourceFaultsTest, TreeOfTwoLevelsIsFound)
{
    const std::uint32_t row = ItemRow(4, 102) + 4;
    Put(row, Word(row) & 0x7FFFFFFF);
    ExpectOnlyFault(image, "the resources cannot be read: they do not have three levels");
}

TEST_F(ResourceFaultsTest, TreeThatPointsOutsideItselfIsFound)
{
    Put(RowOf(0, 4) + 4, 0x80000000 + image.View().Directory(2).size);
    ExpectOnlyFault(image, "the resources cannot be read: it points outside the bytes it is in");
}
