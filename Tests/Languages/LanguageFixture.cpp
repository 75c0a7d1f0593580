#include "Tests/Languages/LanguageFixture.h"

#include "Catalogue/UVDBDatabaseKinds.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

constexpr std::pair<std::string_view, char> kEntities[] = {
    {"&lt;", '<'}, {"&gt;", '>'}, {"&apos;", '\''}, {"&quot;", '"'}, {"&amp;", '&'}};

// Whole runs at a time: trees are large.
void AppendPlain(std::string_view escaped, std::string& text)
{
    while (!escaped.empty()) {
        const std::size_t run = std::min(escaped.find('&'), escaped.size());
        text += escaped.substr(0, run);
        escaped.remove_prefix(run);
        for (const auto& [entity, meaning] : kEntities)
            if (escaped.starts_with(entity)) {
                text += meaning;
                escaped.remove_prefix(entity.size());
                break;
            }
    }
}

std::string Lower(std::string text)
{
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

struct SPattern
{
    std::string name; // of a node, or the text of a token in lower case
    bool isToken = false;
    std::vector<SPattern> inner;
};

SPattern ReadPattern(std::string_view& rest)
{
    const auto skipBlanks = [&] { rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size())); };
    SPattern pattern;
    skipBlanks();
    if (rest.starts_with('\'')) {
        const std::size_t end = rest.find('\'', 1);
        if (end == rest.npos)
            throw std::invalid_argument("pattern: a token without its end");
        pattern.isToken = true;
        pattern.name = rest.substr(1, end - 1);
        rest.remove_prefix(end + 1);
        return pattern;
    }
    const std::size_t end = std::min(rest.find_first_of("() "), rest.size());
    pattern.name = rest.substr(0, end);
    rest.remove_prefix(end);
    if (pattern.name.empty())
        throw std::invalid_argument("pattern: a name is missing");
    if (!rest.starts_with('('))
        return pattern;
    rest.remove_prefix(1);
    for (skipBlanks(); !rest.starts_with(')'); skipBlanks())
        pattern.inner.push_back(ReadPattern(rest));
    rest.remove_prefix(1);
    return pattern;
}

bool Matches(const std::vector<SElement>& elements, std::size_t at, const SPattern& pattern);

// The first element from `at` on, before `end`, that matches; `end` if none does.
std::size_t Find(const std::vector<SElement>& elements, std::size_t at, std::size_t end,
                 const SPattern& pattern)
{
    while (at < end && !Matches(elements, at, pattern))
        ++at;
    return at;
}

bool Matches(const std::vector<SElement>& elements, std::size_t at, const SPattern& pattern)
{
    const SElement& element = elements[at];
    if (pattern.isToken)
        return element.isToken && Lower(element.text) == pattern.name;
    if (element.isToken || element.name != pattern.name)
        return false;
    std::size_t next = at + 1;
    for (const SPattern& inner : pattern.inner) {
        const std::size_t found = Find(elements, next, element.next, inner);
        if (found == element.next)
            return false;
        next = elements[found].next;
    }
    return true;
}

} // namespace

CLanguage::CLanguage(const char* grammar, int db) : m_Engine(grammar)
{
    m_Settings.db = db;
    m_Scanner.ShareTables(m_Engine.m_Lexer);
    m_Scanner.yycreate();
}

SLanguageParse CLanguage::Parse(const std::string& text)
{
    SParseOutcome outcome = m_Engine.Parse(text, m_Settings);
    return {outcome.result == 0 && !outcome.hasThrown && !outcome.tree.empty(), std::move(outcome.tree),
            m_Engine.m_Parser.m_Extension.m_lstUnexpected};
}

std::vector<SColoredRange> CLanguage::Scan(const std::string& text)
{
    m_Scanner.m_Extension.m_strColoring = "";
    m_Scanner.set_Query(text, m_Settings.db);
    while (m_Scanner.yylex() != 0) {
    }
    return ReadColoring(std::string(m_Scanner.m_Extension.m_strColoring));
}

CLanguage& PostgreSQL()
{
    static CLanguage language("PostgreSQL", UVDB_DB_POSTGRESQL);
    return language;
}

std::vector<SColoredRange> ReadColoring(std::string_view coloring)
{
    std::vector<SColoredRange> ranges;
    const char* at = coloring.data();
    const char* const end = at + coloring.size();
    while (at != end) {
        long numbers[3] = {};
        for (long& number : numbers) {
            const auto [behind, error] = std::from_chars(at, end, number);
            if (error != std::errc{} || behind == end)
                throw std::runtime_error("not a coloring map: " + std::string(coloring));
            at = behind + 1; // the blank or line feed
        }
        ranges.push_back({static_cast<int>(numbers[0]), static_cast<std::size_t>(numbers[1]),
                          static_cast<std::size_t>(numbers[2] + 1)});
    }
    return ranges;
}

std::string SourceOfTree(std::string_view tree)
{
    std::string text;
    for (std::size_t at = 0; at < tree.size();) {
        const std::size_t open = std::min(tree.find('<', at), tree.size());
        AppendPlain(tree.substr(at, open - at), text);
        at = std::min(tree.find('>', open), tree.size() - 1) + 1;
    }
    return text;
}

CSyntaxTree::CSyntaxTree(std::string xml) : m_strXml(std::move(xml))
{
    std::vector<std::size_t> open;
    std::size_t contentEnd = 0; // of the last token
    bool isSpace = false;
    for (std::size_t at = 0; at < m_strXml.size();) {
        if (m_strXml[at] != '<') {
            const std::size_t end = std::min(m_strXml.find('<', at), m_strXml.size());
            const std::size_t from = m_strText.size();
            AppendPlain(std::string_view(m_strXml).substr(at, end - at), m_strText);
            if (!isSpace && !open.empty() && m_lstElements[open.back()].isToken) {
                m_lstElements[open.back()].text = m_strText.substr(from);
                contentEnd = m_strText.size();
                // the nodes that begin with this token
                for (auto node = open.rbegin();
                     node != open.rend() && m_lstElements[*node].from == std::string::npos; ++node)
                    m_lstElements[*node].from = from;
            }
            at = end;
            continue;
        }
        const std::size_t end = m_strXml.find('>', at);
        if (end == std::string::npos)
            throw std::runtime_error("a tag without its end");
        const std::string_view tag = std::string_view(m_strXml).substr(at + 1, end - at - 1);
        const std::string_view name = tag.substr(0, tag.find(' '));
        at = end + 1;
        if (name == "T__SPACE" || name == "/T__SPACE") {
            isSpace = name.front() != '/';
        } else if (name.front() == '/') {
            if (open.empty() || m_lstElements[open.back()].name != name.substr(1))
                throw std::runtime_error("tags don't pair: " + std::string(name));
            SElement& element = m_lstElements[open.back()];
            element.end = element.from == std::string::npos ? element.from : contentEnd;
            element.next = m_lstElements.size();
            element.xmlEnd = at;
            open.pop_back();
        } else {
            open.push_back(m_lstElements.size());
            SElement& element = m_lstElements.emplace_back();
            element.name = name;
            element.isToken = name.starts_with("T__");
            element.from = std::string::npos;
            element.xmlFrom = end - tag.size() - 1;
        }
    }
    if (!open.empty())
        throw std::runtime_error("elements without their end");
}

std::vector<SElement> CSyntaxTree::Statements() const
{
    std::vector<SElement> statements;
    for (std::size_t at = 0; at < m_lstElements.size();) {
        const SElement& element = m_lstElements[at];
        const bool isStatement =
            element.name == "delimited_pl_sql_statement" || element.name == "pl_sql_statement";
        if (isStatement)
            statements.push_back(element);
        at = isStatement ? element.next : at + 1;
    }
    return statements;
}

std::string CSyntaxTree::Markup(const SElement& element) const
{
    std::string_view rest =
        std::string_view(m_strXml).substr(element.xmlFrom, element.xmlEnd - element.xmlFrom);
    std::string markup;
    constexpr std::string_view kPlace = " line=\"";
    for (std::size_t at = rest.find(kPlace); at != rest.npos; at = rest.find(kPlace)) {
        markup += rest.substr(0, at);
        rest.remove_prefix(rest.find('>', at));
    }
    return markup.append(rest);
}

std::vector<SElement> CSyntaxTree::Tokens(const SElement& element) const
{
    std::vector<SElement> tokens;
    std::ranges::copy_if(m_lstElements, std::back_inserter(tokens), [&](const SElement& other) {
        return other.isToken && other.xmlFrom >= element.xmlFrom && other.xmlEnd <= element.xmlEnd;
    });
    return tokens;
}

bool CSyntaxTree::Holds(std::string_view pattern) const
{
    const SPattern wanted = ReadPattern(pattern);
    return Find(m_lstElements, 0, m_lstElements.size(), wanted) != m_lstElements.size();
}

std::string CSyntaxTree::Shape() const
{
    std::string shape;
    std::vector<std::size_t> ends;
    for (std::size_t at = 0; at < m_lstElements.size(); ++at) {
        for (; !ends.empty() && ends.back() <= at; ends.pop_back())
            shape += ')';
        if (!shape.empty() && shape.back() != '(')
            shape += ' ';
        const SElement& element = m_lstElements[at];
        shape += element.isToken ? "'" + element.text + "'" : element.name + "(";
        if (!element.isToken)
            ends.push_back(element.next);
    }
    return shape.append(ends.size(), ')');
}

std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("can't read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> SamplePaths(const char* language)
{
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(UV_SOURCE_DIR "/Languages/" +
                                                                 std::string(language) + "/Samples"))
        paths.push_back(entry.path().string());
    std::ranges::sort(paths);
    return paths;
}

std::string Repeated(std::string_view piece, std::size_t count)
{
    std::string text;
    text.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}
