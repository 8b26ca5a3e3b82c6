// Writes the two elements a provisioning document is made of, nested and indented.
#pragma once

#include <string>

class XmlWriter
{
  public:
    enum class Translation
    {
        None,
        Install // the device replaces %CEn% in the text
    };

  private:
    std::string text;
    int depth = 1;

  public:
    XmlWriter();

    void Open(const std::string& type, Translation translation = Translation::None);
    void Close();
    // One without content.
    void Empty(const std::string& type);
    void Parm(const std::string& name, const std::string& value, Translation translation = Translation::None);
    std::string Finish();

  private:
    void Line(const std::string& line);
};
