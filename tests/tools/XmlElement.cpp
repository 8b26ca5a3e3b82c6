// Reads the part of XML that provisioning documents use.
#include "tests/tools/XmlElement.h"

#include <stdexcept>

namespace {

class Parser
{
    const std::string& text;
    std::size_t at = 0;

  public:
    explicit Parser(const std::string& document) : text(document) {}

    XmlElement Document()
    {
        XmlElement root = Element();
        Blanks();
        Check(at == text.size(), "text behind the document");
        return root;
    }

  private:
    void Check(bool good, const std::string& problem) const
    {
        if (!good) {
            throw std::runtime_error("not well-formed at " + std::to_string(at) + ": " + problem);
        }
    }

    bool Take(const std::string& expected)
    {
        if (text.compare(at, expected.size(), expected) != 0) {
            return false;
        }
        at += expected.size();
        return true;
    }

    void Need(const std::string& expected) { Check(Take(expected), "no " + expected); }

    bool Blanks()
    {
        const std::size_t begin = at;
        while (at < text.size() && (text[at] == ' ' || text[at] == '\n')) {
            at++;
        }
        return at > begin;
    }

    std::string Name()
    {
        const std::size_t begin = at;
        while (at < text.size() && (std::isalpha(static_cast<unsigned char>(text[at])) || text[at] == '-')) {
            at++;
        }
        Check(at > begin, "no name");
        return text.substr(begin, at - begin);
    }

    std::string Value()
    {
        static const std::map<std::string, char> entities = {
            {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
        std::string value;
        Need("\"");
        while (!Take("\"")) {
            Check(at < text.size() && text[at] >= ' ' && text[at] != '<', "bad character in a value");
            if (text[at] != '&') {
                value += text[at++];
                continue;
            }
            const auto entity = entities.find(text.substr(at, text.find(';', at) + 1 - at));
            Check(entity != entities.end(), "unknown entity");
            at += entity->first.size();
            value += entity->second;
        }
        return value;
    }

    XmlElement Element()
    {
        XmlElement element;
        Blanks();
        Need("<");
        element.name = Name();
        while (Blanks()) {
            const std::string key = Name();
            Need("=");
            Check(element.attributes.emplace(key, Value()).second, "an attribute given twice");
        }
        if (Take("/>")) {
            return element;
        }
        Need(">");
        for (Blanks(); !Take("</"); Blanks()) {
            element.children.push_back(Element());
        }
        Need(element.name + ">");
        return element;
    }
};

} // namespace

std::string XmlElement::Parm(const std::string& key) const
{
    for (const XmlElement& child : children) {
        if (child.name == "parm" && child.Attribute("name") == key) {
            return child.Attribute("value");
        }
    }
    throw std::runtime_error("no parm " + key);
}

XmlElement ParseXml(const std::string& text)
{
    return Parser(text).Document();
}
