// Imports that no loader would find, or that the lists do not have.
#include "tests/device/image/ImportFixture.h"

class ImportNamesTest : public ImportFixture
{
  protected:
    // Imports it in the place of one of aygshell's names; the text is in that of a longer name of another
    // library.
    void ImportFromAygshell(const char* name)
    {
        const std::uint32_t place =
            Library("coredll.dll").lookups.at(IndexOf("coredll.dll", "CreateCompatibleBitmap"));
        image.PutTextAt(place + 2, name);
        PutImport("aygshell.dll", IndexOf("aygshell.dll", "SHCreateMenuBar"), place);
    }
};

TEST_F(ImportNamesTest, NumberWithoutTheHighBitIsFound)
{
    PutNumber(0x00000009);
    ExpectOnlyFault(image, "aygshell.dll: an import is neither a number nor the place of a name");
}

TEST_F(ImportNamesTest, NumberWithTheNextBitInsteadIsFound)
{
    PutNumber(0x40000009);
    ExpectOnlyFault(image, "aygshell.dll: an import is neither a number nor the place of a name");
}

TEST_F(ImportNamesTest, NumberWithOneBitTooManyIsFound)
{
    PutNumber(0x80010009);
    ExpectFault(image, "aygshell.dll: a number has bits that none has");
}

TEST_F(ImportNamesTest, UnlistedNumberIsFound)
{
    PutNumber(0x8000000A);
    ExpectOnlyFault(image, "aygshell.dll: number 10 is not listed");
}

TEST_F(ImportNamesTest, NameAtAnOddAddressIsFound)
{
    // One byte further on: its zero falls on what fills up to the next name, or on that one's hint of zero.
    const std::uint32_t place = Library("coredll.dll").lookups.at(0);
    image.PutTextAt(place + 3, image.View().TextAt(place + 2));
    PutImport("coredll.dll", 0, place + 1);
    ExpectOnlyFault(image, "coredll.dll: a name is at an odd address");
}

TEST_F(ImportNamesTest, UnlistedNameIsFound)
{
    Rename("coredll.dll", "CreateWindowExW", "CreateWindowExA");
    ExpectOnlyFault(image, "coredll.dll: CreateWindowExA is not listed");
}

TEST_F(ImportNamesTest, NameThatIsOnThePcOnlyIsFound)
{
    Rename("coredll.dll", "CreateCompatibleBitmap", "GetCurrentProcess");
    ExpectOnlyFault(image, "coredll.dll: GetCurrentProcess is imported by name, but listed as pc");
}

TEST_F(ImportNamesTest, NameThatIsLookedUpLateIsFound)
{
    ImportFromAygshell("SHHandleWMActivate");
    ExpectFault(image, "aygshell.dll: SHHandleWMActivate is imported by name, but listed as late");
}

TEST_F(ImportNamesTest, NameThatHasANumberIsFound)
{
    ImportFromAygshell("SHInitExtraControls");
    ExpectFault(image, "aygshell.dll: SHInitExtraControls is imported by name, but listed as 9");
}

TEST_F(ImportNamesTest, LibraryWithoutDllIsFound)
{
    image.PutTextAt(NameOf("ole32.dll"), "ole32");
    ExpectOnlyFault(image, "ole32: the name does not end in .dll");
}

TEST_F(ImportNamesTest, LibraryWithoutAListIsFound)
{
    image.PutTextAt(NameOf("ole32.dll"), "ole16.dll");
    ExpectOnlyFault(image, "ole16.dll: there is no list of its functions");
}

TEST_F(ImportNamesTest, FileOfEvidenceIsNoList)
{
    image.PutTextAt(NameOf("toolhelp.dll"), "evidence.dll");
    ExpectFault(image, "evidence.dll: there is no list of its functions");
}
