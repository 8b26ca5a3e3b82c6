// Follows the XML instructions on paper.
#include "tests/tools/InstallPlan.h"
#include "tests/tools/XmlElement.h"

#include <stdexcept>

static void Check(bool good, const std::string& problem)
{
    if (!good) {
        throw std::runtime_error(problem);
    }
}

// "file ..." or "shortcut ..."
static std::string Deed(const XmlElement& folder, const XmlElement& file)
{
    const XmlElement& operation = file.Child(0);
    const std::string path = folder.Attribute("type") + "\\" + file.Attribute("type");
    const std::string source = operation.Parm("Source");
    if (operation.Attribute("type") == "Shortcut") {
        return ShortcutDeed(path, source);
    }
    Check(operation.Attribute("type") == "Extract", "an unknown operation");
    return FileDeed(path, static_cast<std::uint32_t>(std::stoul(source.substr(source.rfind('.') + 1))));
}

InstallPlan PlanOfXml(const std::string& instructions)
{
    const XmlElement document = ParseXml(instructions);
    const XmlElement& install = document.Child(0);
    const XmlElement& operations = document.Child(1);
    Check(document.name == "wap-provisioningdoc" && document.children.size() == 2, "another document");
    Check(install.Attribute("type") == "Install", "it does not begin with the installation");
    Check(operations.Attribute("type") == "FileOperation", "no operations on files");

    InstallPlan deeds;
    std::size_t files = 0;
    for (const XmlElement& folder : operations.children) {
        Check(folder.Child(0).Attribute("type") == "MakeDir", "a folder is not made");
        for (std::size_t i = 1; i < folder.children.size(); i++) {
            deeds.push_back(Deed(folder, folder.Child(i)));
            if (deeds.back().starts_with("file")) {
                files++;
                Check(folder.Attribute("type") == install.Parm("InstallDir"), "a file in another folder");
            }
        }
    }
    Check(install.Parm("NumFiles") == std::to_string(files), "the files are counted wrongly");
    Check(install.Parm("NumShortcuts") == std::to_string(deeds.size() - files), "so are the shortcuts");

    const auto newest = static_cast<std::uint32_t>(std::stol(install.Parm("BuildNumberMax")));
    deeds.push_back("application " + install.Parm("AppName"));
    deeds.push_back("versions " + install.Parm("OSVersionMin") + " to " + install.Parm("OSVersionMax"));
    deeds.push_back("builds " + install.Parm("BuildNumberMin") + " to " + std::to_string(newest));
    deeds.push_back(FolderDeed(install.Parm("InstallDir")));
    deeds.push_back("registry " + install.Parm("NumRegKeys") + " " + install.Parm("NumRegVals"));
    return Sorted(deeds);
}
