// Reads the part of XML that provisioning documents use: elements with attributes, nothing between them.
#pragma once

#include <map>
#include <string>
#include <vector>

struct XmlElement
{
    std::string name;
    std::map<std::string, std::string> attributes;
    std::vector<XmlElement> children;

    // These throw for what is not there.
    const XmlElement& Child(std::size_t index) const { return children.at(index); }
    const std::string& Attribute(const std::string& key) const { return attributes.at(key); }
    // The value of the <parm> of this name.
    std::string Parm(const std::string& key) const;
};

// Throws std::runtime_error for text that is not well-formed.
XmlElement ParseXml(const std::string& text);
