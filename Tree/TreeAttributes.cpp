#include "Tree/TreeAttributes.h"

#include "Tree/TreeCharacters.h"

#include <algorithm>

namespace {

std::string Before(const std::string& text, char mark)
{
    const std::size_t at = text.find(mark);
    return at == std::string::npos ? std::string() : text.substr(0, at);
}

std::string After(const std::string& text, char mark)
{
    const std::size_t at = text.find(mark);
    return at == std::string::npos ? std::string() : text.substr(at + 1);
}

void SetAttribute(TreeAttributes& attributes, std::string_view name, std::string value)
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const auto& attribute) { return attribute.first == name; });
    if (found != attributes.end())
        found->second = std::move(value);
    else
        attributes.emplace_back(name, std::move(value));
}

} // namespace

TreeAttributes ReadAttributes(std::string_view tag)
{
    TreeAttributes attributes;
    std::string_view rest = tag;
    rest.remove_prefix(tag.find_first_of(" \t\r\n/>"));
    for (;;) {
        const std::size_t from = rest.find_first_not_of(" \t\r\n/>");
        if (from == std::string_view::npos)
            return attributes;
        rest.remove_prefix(from);
        const std::string_view name = rest.substr(0, rest.find_first_of(" \t\r\n="));
        rest.remove_prefix(rest.find_first_of("\"'"));
        const std::size_t end = rest.find(rest.front(), 1);
        attributes.emplace_back(name, std::string());
        AppendCharacters(rest.substr(1, end - 1), enRun::Value, attributes.back().second);
        rest.remove_prefix(end + 1);
    }
}

void AddMacroAttributes(const std::string& text, TreeAttributes& attributes)
{
    SetAttribute(attributes, "macro", "1");
    const std::size_t mark = text.find_first_of("=#");
    if (mark != std::string::npos && text[mark] == '=') {
        SetAttribute(attributes, "xpath", After(text, '='));
        SetAttribute(attributes, "name", Before(text, '='));
    } else if (mark != std::string::npos) {
        const bool hasCondition = text.find('[') != std::string::npos;
        if (hasCondition)
            SetAttribute(attributes, "match", '[' + After(text, '['));
        SetAttribute(attributes, "uid", hasCondition ? Before(After(text, '#'), '[') : After(text, '#'));
        SetAttribute(attributes, "name", Before(text, '#'));
    }
}

void WriteAttributes(const TreeAttributes& attributes, CTextBlock& out)
{
    std::string escaped;
    for (const auto& [name, value] : attributes) {
        out.Write(" ");
        out.Write(name);
        out.Write("=\"");
        escaped.clear();
        AppendEscapedValue(value, escaped);
        out.Write(escaped);
        out.Write("\"");
    }
}
