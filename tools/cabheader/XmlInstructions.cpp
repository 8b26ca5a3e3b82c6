// The XML instructions: what the installer has to know first, then the operations on folders and files.
#include "tools/cabheader/XmlInstructions.h"

#include "tools/cabheader/XmlWriter.h"

using enum XmlWriter::Translation;

static std::string VersionText(const OsVersion& version)
{
    return std::to_string(version.major) + "." + std::to_string(version.minor);
}

static void WriteInstall(XmlWriter& xml, const Installation& installation)
{
    xml.Open("Install");
    xml.Parm("InstallPhase", "install");
    xml.Parm("OSVersionMin", VersionText(installation.oldest));
    xml.Parm("OSVersionMax", VersionText(installation.newest));
    xml.Parm("BuildNumberMin", "0");
    // As a signed number here.
    xml.Parm("BuildNumberMax", std::to_string(static_cast<std::int32_t>(Installation::newestBuild)));
    xml.Parm("AppName", installation.FullName());
    xml.Parm("InstallDir", installation.folder.Text(), Install);
    xml.Parm("NumDirs", "1");
    xml.Parm("NumFiles", std::to_string(installation.files.size()));
    xml.Parm("NumRegKeys", "0");
    xml.Parm("NumRegVals", "0");
    xml.Parm("NumShortcuts", std::to_string(installation.shortcuts.size()));
    xml.Close();
}

static void OpenFolder(XmlWriter& xml, const DevicePath& folder)
{
    xml.Open(folder.Text(), Install);
    xml.Empty("MakeDir");
}

static void WriteFiles(XmlWriter& xml, const Installation& installation)
{
    OpenFolder(xml, installation.folder);
    for (std::size_t i = 0; i < installation.files.size(); i++) {
        xml.Open(installation.files[i], Install);
        xml.Open("Extract");
        xml.Parm("Source", installation.CabinetFile(i + 1));
        xml.Close();
        xml.Close();
    }
    xml.Close();
}

static void WriteShortcut(XmlWriter& xml, const Installation& installation, const Shortcut& shortcut)
{
    OpenFolder(xml, shortcut.path.Parent());
    xml.Open(shortcut.path.Parts().back(), Install);
    xml.Open("Shortcut");
    xml.Parm("Source", installation.folder.Child(installation.files[shortcut.file]).Text(), Install);
    xml.Close();
    xml.Close();
    xml.Close();
}

std::string WriteXmlInstructions(const Installation& installation)
{
    XmlWriter xml;
    WriteInstall(xml, installation);
    xml.Open("FileOperation");
    WriteFiles(xml, installation);
    for (const Shortcut& shortcut : installation.shortcuts) {
        WriteShortcut(xml, installation, shortcut);
    }
    xml.Close();
    return xml.Finish();
}
