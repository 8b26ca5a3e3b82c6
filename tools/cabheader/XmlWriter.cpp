// Writes the two elements a provisioning document is made of.
#include "tools/cabheader/XmlWriter.h"

static std::string Attribute(const std::string& name, const std::string& value)
{
    std::string result = " " + name + "=\"";
    for (const char c : value) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += c;
        }
    }
    return result + "\"";
}

static std::string Attribute(XmlWriter::Translation translation)
{
    return translation == XmlWriter::Translation::Install ? Attribute("translation", "install") : "";
}

XmlWriter::XmlWriter() : text("<wap-provisioningdoc>\n") {}

void XmlWriter::Open(const std::string& type, Translation translation)
{
    Line("<characteristic" + Attribute("type", type) + Attribute(translation) + ">");
    depth++;
}

void XmlWriter::Close()
{
    depth--;
    Line("</characteristic>");
}

void XmlWriter::Empty(const std::string& type)
{
    Line("<characteristic" + Attribute("type", type) + "/>");
}

void XmlWriter::Parm(const std::string& name, const std::string& value, Translation translation)
{
    Line("<parm" + Attribute("name", name) + Attribute("value", value) + Attribute(translation) + "/>");
}

std::string XmlWriter::Finish()
{
    return text + "</wap-provisioningdoc>\n";
}

void XmlWriter::Line(const std::string& line)
{
    static constexpr int indent = 2;
    text += std::string(static_cast<std::size_t>(indent * depth), ' ') + line + "\n";
}
