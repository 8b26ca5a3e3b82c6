// The XML instructions of an installation, as text.
#include "tests/tools/Cabheader.h"
#include "tests/tools/XmlElement.h"

#include <gtest/gtest.h>

TEST(XmlInstructionsTest, WholeDocument)
{
    const Instructions written = WriteInstructions(Joined({
        "provider = Me",
        "name = Tool",
        "oldest = 5.1",
        "newest = 6.99",
        "cabinet = TEST",
        R"(folder = %CE1%\Dir)",
        "file = p.exe",
        "file = p.dat",
        R"(shortcut = %CE11%\Sub\p.lnk > p.exe)",
    }));
    EXPECT_EQ(written.xml, R"(<wap-provisioningdoc>
  <characteristic type="Install">
    <parm name="InstallPhase" value="install"/>
    <parm name="OSVersionMin" value="5.1"/>
    <parm name="OSVersionMax" value="6.99"/>
    <parm name="BuildNumberMin" value="0"/>
    <parm name="BuildNumberMax" value="-536870912"/>
    <parm name="AppName" value="Me Tool"/>
    <parm name="InstallDir" value="%CE1%\Dir" translation="install"/>
    <parm name="NumDirs" value="1"/>
    <parm name="NumFiles" value="2"/>
    <parm name="NumRegKeys" value="0"/>
    <parm name="NumRegVals" value="0"/>
    <parm name="NumShortcuts" value="1"/>
  </characteristic>
  <characteristic type="FileOperation">
    <characteristic type="%CE1%\Dir" translation="install">
      <characteristic type="MakeDir"/>
      <characteristic type="p.exe" translation="install">
        <characteristic type="Extract">
          <parm name="Source" value="TEST.001"/>
        </characteristic>
      </characteristic>
      <characteristic type="p.dat" translation="install">
        <characteristic type="Extract">
          <parm name="Source" value="TEST.002"/>
        </characteristic>
      </characteristic>
    </characteristic>
    <characteristic type="%CE11%\Sub" translation="install">
      <characteristic type="MakeDir"/>
      <characteristic type="p.lnk" translation="install">
        <characteristic type="Shortcut">
          <parm name="Source" value="%CE1%\Dir\p.exe" translation="install"/>
        </characteristic>
      </characteristic>
    </characteristic>
  </characteristic>
</wap-provisioningdoc>
)");
}

TEST(XmlInstructionsTest, CharactersWithAMeaningInXmlAreEscaped)
{
    const Instructions written =
        WriteInstructions(Joined({R"(provider = <&> "a" 'b')", "name = &amp;", "oldest = 5.0", "newest = 5.0",
                                  "cabinet = TEST", R"(folder = %CE1%\R&D)", "file = a&b'.exe"}));
    EXPECT_NE(written.xml.find(R"(value="&lt;&amp;&gt; &quot;a&quot; 'b' &amp;amp;")"), std::string::npos)
        << written.xml;
    EXPECT_NE(written.xml.find(R"(value="%CE1%\R&amp;D")"), std::string::npos) << written.xml;
    EXPECT_NE(written.xml.find(R"(type="a&amp;b'.exe")"), std::string::npos) << written.xml;
    // And read back they are what they were.
    const XmlElement document = ParseXml(written.xml);
    EXPECT_EQ(document.Child(0).Parm("AppName"), R"(<&> "a" 'b' &amp;)");
    EXPECT_EQ(document.Child(1).Child(0).Attribute("type"), R"(%CE1%\R&D)");
}

TEST(XmlInstructionsTest, AShortcutLeadsToTheFileItNames)
{
    const Instructions written =
        WriteInstructions(Joined(GoodDescription()) + "file = b.exe\n"
                                                      R"(shortcut = %CE11%\b.lnk > b.exe)"
                                                      "\n"
                                                      R"(shortcut = %CE11%\a.lnk > a.exe)");
    const XmlElement operations = ParseXml(written.xml).Child(1);
    const XmlElement& first = operations.Child(1).Child(1);
    EXPECT_EQ(first.Attribute("type"), "b.lnk");
    EXPECT_EQ(first.Child(0).Parm("Source"), R"(%CE1%\One\b.exe)");
    const XmlElement& second = operations.Child(2).Child(1);
    EXPECT_EQ(second.Attribute("type"), "a.lnk");
    EXPECT_EQ(second.Child(0).Parm("Source"), R"(%CE1%\One\a.exe)");
}
