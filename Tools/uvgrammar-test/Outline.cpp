#include "Tools/uvgrammar-test/Outline.h"

#include "Tools/uvparse/MarkupScanner.h"
#include "Tools/uvparse/TreeText.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace uvtest {

namespace {

using uvparse::enMarkup;
using uvparse::SMarkup;

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kBlanks = " \t\r\n\f";
constexpr std::string_view kSpaceElement = "T__SPACE";
constexpr std::array<std::string_view, 5> kPlaces = {"line", "pos", "col", "column", "color"};
constexpr std::string_view kHexadecimals = "0123456789abcdef";
constexpr std::array<std::pair<char, char>, 3> kEscapes = {{{'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}}};

std::string_view Trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// A tree without recursion, in the order of its lines.
class CNodes
{
public:
    // A text has no name.
    void Open(std::string_view name, std::string attributes = {})
    {
        if (!m_Open.empty())
            ++m_Nodes[m_Open.back()].children;
        m_Open.push_back(m_Nodes.size());
        m_Nodes.push_back({std::string(name),
                           std::move(attributes),
                           {},
                           m_Open.size() > 1 ? m_Open[m_Open.size() - 2] : kNone});
    }

    void AddText(std::string_view text)
    {
        if (!m_Open.empty())
            m_Pending += text;
    }

    void AddAttribute(const std::string& shown) { m_Nodes[m_Open.back()].attributes += shown; }

    // Text before an element is a node of its own.
    void EndText()
    {
        if (m_Pending.empty())
            return;
        Open({});
        m_Nodes.back().text = std::exchange(m_Pending, {});
        m_Open.pop_back();
    }

    void Close()
    {
        if (m_Nodes[m_Open.back()].children > 0)
            EndText();
        SNode& node = m_Nodes[m_Open.back()];
        node.text = std::exchange(m_Pending, {});
        m_Open.pop_back();
        if (node.name != kSpaceElement || node.children > 0)
            return;
        node.text = Trimmed(node.text);
        if (!node.text.empty())
            return;
        m_Nodes.pop_back();
        if (!m_Open.empty())
            --m_Nodes[m_Open.back()].children;
    }

    std::size_t Depth() const { return m_Open.size(); }
    std::string_view Name() const { return m_Nodes[m_Open.back()].name; }

    TLines Lines() const
    {
        TLines lines;
        std::vector<std::size_t> indents;
        bool goesOn = false; // the line before, for its only element
        for (std::size_t i = 0; i < m_Nodes.size(); ++i) {
            const SNode& node = m_Nodes[i];
            if (goesOn) {
                lines.back() += '/';
                indents.push_back(indents.back());
            } else {
                indents.push_back(node.parent == kNone ? 0 : indents[node.parent] + 1);
                lines.emplace_back(2 * indents.back(), ' ');
            }
            std::string& line = lines.back();
            line += node.name + node.attributes;
            if (!node.text.empty())
                line.append(node.name.empty() ? "" : " ").append(QuotedText(node.text));
            goesOn = node.children == 1 && node.attributes.empty() && !m_Nodes[i + 1].name.empty();
        }
        return lines;
    }

    std::vector<SOutlineElement> Elements() const
    {
        std::vector<SOutlineElement> elements;
        for (const SNode& node : m_Nodes)
            elements.push_back({node.name, node.text, node.parent});
        return elements;
    }

private:
    struct SNode
    {
        std::string name;
        std::string attributes; // as they are shown, each after a blank
        std::string text;
        std::size_t parent = kNone;
        std::size_t children = 0;
    };

    std::vector<SNode> m_Nodes;
    std::vector<std::size_t> m_Open;
    std::string m_Pending; // text of the innermost open node
};

std::string ShownAttribute(std::string_view name, std::string_view value)
{
    return ' ' + std::string(name) + '=' + QuotedText(value);
}

bool IsShown(std::string_view element, std::string_view attribute, std::string_view value)
{
    if (attribute == "type")
        return value != "TOKEN" || !element.starts_with("T__");
    return std::ranges::find(kPlaces, attribute) == kPlaces.end();
}

// Those of a tag that are shown.
std::string AttributesOf(const SMarkup& markup)
{
    std::string shown;
    std::string_view rest = markup.text;
    rest.remove_prefix(static_cast<std::size_t>(markup.name.data() + markup.name.size() - rest.data()));
    while (true) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
        const std::size_t equals = rest.find('=');
        const std::size_t begin = rest.find_first_of("\"'", equals);
        if (equals == kNone || begin == kNone)
            return shown;
        const std::size_t end = rest.find(rest[begin], begin + 1);
        const std::string_view name = Trimmed(rest.substr(0, equals));
        const std::string value = uvparse::PlainText(rest.substr(begin + 1, end - begin - 1));
        if (IsShown(markup.name, name, value))
            shown += ShownAttribute(name, value);
        rest.remove_prefix(end + 1);
    }
}

// Reads one line of an outline.
class CLineReader
{
public:
    CLineReader(std::string_view line, std::size_t index) : m_Rest(line), m_Index(index) {}

    std::size_t TakeIndent()
    {
        const std::size_t indent = std::min(m_Rest.find_first_not_of(' '), m_Rest.size());
        m_Rest.remove_prefix(indent);
        return indent;
    }

    bool IsAtEnd() const { return m_Rest.empty(); }
    bool IsAt(char c) const { return m_Rest.starts_with(c); }
    bool IsAtText() const { return IsAt('"') || IsAt('\''); }
    bool Skip(char c)
    {
        const bool isThere = IsAt(c);
        while (IsAt(c))
            m_Rest.remove_prefix(1);
        return isThere;
    }

    std::string_view TakeName()
    {
        const std::string_view name = m_Rest.substr(0, m_Rest.find_first_of(" /\"'=\t"));
        if (name.empty())
            Refuse("the name of an element is expected before '" + std::string(m_Rest) + "'");
        m_Rest.remove_prefix(name.size());
        return name;
    }

    std::string TakeText()
    {
        const char quote = m_Rest.front();
        std::string text;
        for (std::size_t at = 1; at < m_Rest.size(); ++at) {
            if (m_Rest[at] == quote) {
                m_Rest.remove_prefix(at + 1);
                return text;
            }
            text += m_Rest[at] == '\\' ? TakeEscape(at) : m_Rest[at];
        }
        Refuse("a text has no end");
    }

    [[noreturn]] void Refuse(const std::string& text) const { throw COutlineError(m_Index, text); }

private:
    // `at` is moved from the backslash to the last character that belongs to it.
    char TakeEscape(std::size_t& at) const
    {
        const char c = ++at < m_Rest.size() ? m_Rest[at] : ' ';
        if (c == '\\' || c == '"' || c == '\'')
            return c;
        const auto* const escape = std::ranges::find(kEscapes, c, &std::pair<char, char>::second);
        if (escape != kEscapes.end())
            return escape->first;
        unsigned int code = 0;
        const char* const digits = m_Rest.data() + at + 1;
        if (c != 'x' || at + 2 >= m_Rest.size() ||
            std::from_chars(digits, digits + 2, code, 16).ptr != digits + 2)
            Refuse(std::string("\\") + c + " means nothing in a text");
        at += 2;
        return static_cast<char>(code);
    }

    std::string_view m_Rest;
    std::size_t m_Index;
};

CNodes NodesOfLines(const TLines& lines)
{
    CNodes nodes;
    std::vector<std::size_t> indents; // of the open nodes; those of one line have one
    for (std::size_t i = 0; i < lines.size(); ++i) {
        CLineReader line(lines[i], i);
        const std::size_t indent = line.TakeIndent();
        std::size_t closed = indent;
        for (; !indents.empty() && indents.back() >= indent; indents.pop_back()) {
            nodes.Close();
            closed = indents.back();
        }
        if (closed != indent)
            line.Refuse("no line above is indented like this one");
        if (line.IsAtText()) {
            if (nodes.Depth() == 0)
                line.Refuse("a text stands in no element");
            nodes.AddText(line.TakeText());
        } else {
            do {
                nodes.EndText();
                nodes.Open(line.TakeName());
                indents.push_back(indent);
                while (line.Skip(' ')) {
                    if (line.IsAtText()) {
                        nodes.AddText(line.TakeText());
                        break;
                    }
                    if (line.IsAtEnd())
                        break;
                    const std::string_view attribute = line.TakeName();
                    if (!line.Skip('=') || !line.IsAtText())
                        line.Refuse("an attribute's value is expected after '" + std::string(attribute) +
                                    "'");
                    nodes.AddAttribute(ShownAttribute(attribute, line.TakeText()));
                }
            } while (line.Skip('/'));
        }
        line.Skip(' ');
        if (!line.IsAtEnd())
            line.Refuse("more stands after the end of the line's last element");
    }
    while (nodes.Depth() > 0)
        nodes.Close();
    return nodes;
}

} // namespace

std::string QuotedText(std::string_view text)
{
    const bool isSingle = text.find('"') != kNone && text.find('\'') == kNone;
    const char quote = isSingle ? '\'' : '"';
    std::string quoted(1, quote);
    std::size_t invalid = UVDB::FindInvalidUTF8(text);
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        const auto* const escape = std::ranges::find(kEscapes, c, &std::pair<char, char>::first);
        const auto byte = static_cast<unsigned char>(c);
        if (escape != kEscapes.end())
            quoted.append({'\\', escape->second});
        else if (c == quote || c == '\\')
            quoted.append({'\\', c});
        else if (byte < 0x20 || byte == 0x7F || at == invalid)
            quoted.append({'\\', 'x', kHexadecimals[byte / 16u], kHexadecimals[byte % 16u]});
        else
            quoted += c;
        if (at == invalid)
            invalid = at + 1 + std::min(UVDB::FindInvalidUTF8(text.substr(at + 1)), text.size());
    }
    return quoted + quote;
}

TLines OutlineOfTree(std::string_view tree)
{
    CNodes nodes;
    uvparse::CMarkupScanner scanner(tree);
    for (SMarkup markup; scanner.Next(markup);) {
        switch (markup.kind) {
        case enMarkup::Text:
            nodes.AddText(uvparse::PlainText(markup.text));
            break;
        case enMarkup::Start:
        case enMarkup::Empty:
            nodes.EndText();
            nodes.Open(markup.name, AttributesOf(markup));
            if (markup.kind == enMarkup::Empty)
                nodes.Close();
            break;
        case enMarkup::End:
            if (nodes.Depth() == 0 || nodes.Name() != markup.name)
                throw std::runtime_error("the tree isn't well-formed");
            nodes.Close();
            break;
        case enMarkup::Other:
            break;
        }
    }
    if (nodes.Depth() > 0 || !scanner.IsAtEnd())
        throw std::runtime_error("the tree isn't well-formed");
    return nodes.Lines();
}

TLines OutlineOfLines(const TLines& lines)
{
    return NodesOfLines(lines).Lines();
}

std::vector<SOutlineElement> ElementsOfLines(const TLines& lines)
{
    return NodesOfLines(lines).Elements();
}

} // namespace uvtest
