#include "Tests/Languages/LanguageFixture.h"

#include "Catalogue/UVDBDatabaseKinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace {

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

// Lines of three numbers: color, first byte, last byte.
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

// What a tree shows of a text whose spaces hold one of the two control characters that XML has no place for.
// Inside of tokens they stay.
std::string ShownText(std::string text)
{
    std::erase(text, '\f');
    for (std::size_t at = text.find('\x10'); at != text.npos; at = text.find('\x10', at))
        text.replace(at, 1, "ORVANTA_DATA_LINK_ESCAPE_REPLACER");
    return text;
}

} // namespace

CLanguage::CLanguage(const char* grammar, int db, bool isQidName) : m_Engine(grammar)
{
    m_Settings.db = db;
    m_Settings.isMssqlQid = isQidName;
    m_Scanner.m_Extension.m_bMSSQLQID = isQidName;
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

CLanguage& MySQL()
{
    static CLanguage language("MySQL", UVDB_DB_MySQL, false);
    return language;
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

SLanguageParse ParseWhole(CLanguage& language, const std::string& text)
{
    SLanguageParse parse = language.Parse(text);
    EXPECT_TRUE(parse.isComplete);
    const std::string source = TextOfTree(parse.tree);
    if (source != text && ShownText(source) != ShownText(text)) {
        const auto at = std::ranges::mismatch(source, text).in2 - text.begin();
        ADD_FAILURE() << "text was lost at byte " << at << ": "
                      << text.substr(static_cast<std::size_t>(at), 100);
    }
    return parse;
}

void ExpectPiecesLoseNothing(CLanguage& language, const std::vector<std::string>& texts, std::size_t step)
{
    for (const std::string& text : texts)
        for (std::size_t size = 0; size <= text.size() && !testing::Test::HasFailure(); size += step) {
            SCOPED_TRACE(text.substr(0, 20) + ' ' + std::to_string(size));
            ParseWhole(language, text.substr(0, size));
        }
}

void ExpectSpoiledTextsLoseNothing(CLanguage& language, const std::vector<std::string>& texts,
                                   std::string_view favourites)
{
    std::mt19937 random(1);
    for (const std::string& original : texts)
        for (int round = 0; round < 300 && !testing::Test::HasFailure(); ++round) {
            std::string text = original;
            for (std::size_t changes = 1 + random() % 20; changes > 0; --changes) {
                const std::size_t at = random() % text.size();
                const char byte = random() % 4 == 0 ? static_cast<char>(random() % 255 + 1)
                                                    : favourites[random() % favourites.size()];
                const std::size_t choice = random() % 3;
                if (choice == 0)
                    text[at] = byte;
                else if (choice == 1)
                    text.insert(at, 1, byte);
                else
                    text.erase(at, 1 + random() % 3);
            }
            SCOPED_TRACE(round);
            ParseWhole(language, text);
        }
}

void ExpectOneStatement(CLanguage& language, const std::string& text, std::initializer_list<const char*> ends)
{
    SCOPED_TRACE(text);
    for (const char* const end : ends) {
        const SLanguageParse parse = ParseWhole(language, text + end);
        EXPECT_TRUE(parse.IsClean());
        EXPECT_EQ(CSyntaxTree(parse.tree).Statements().size(), 1U);
    }
}

std::size_t CountOf(const CSyntaxTree& tree, std::string_view name)
{
    return static_cast<std::size_t>(std::ranges::count(tree.Elements(), name, &SElement::name));
}

std::size_t DepthOf(const std::string& xml)
{
    std::size_t depth = 0, deepest = 0;
    for (std::size_t at = xml.find('<'); at != std::string::npos; at = xml.find('<', at + 1)) {
        depth = xml[at + 1] == '/' ? depth - 1 : depth + 1;
        deepest = std::max(deepest, depth);
    }
    return deepest;
}

std::string ShownColors(CLanguage& language, const std::string& text)
{
    std::string shown;
    for (const SColoredRange& range : language.Scan(text)) {
        const std::string piece = text.substr(range.from, range.end - range.from);
        shown += piece == "\n" ? "/ " : std::to_string(range.color) + piece + ' ';
    }
    return shown;
}

void ExpectRealTexts(CLanguage& language, const char* folder, std::size_t cleanOfHundred)
{
    std::size_t statements = 0;
    std::size_t unexpected = 0;
    for (const std::string& path : CorpusPaths(folder)) {
        SCOPED_TRACE(path);
        const SLanguageParse parse = ParseWhole(language, ReadFile(path));
        statements += CSyntaxTree(parse.tree).Statements().size();
        unexpected += parse.unexpected.size();
    }
    EXPECT_LE(100 * unexpected, (100 - cleanOfHundred) * statements);
}

std::vector<std::string> CorpusPaths(const char* folder)
{
    const char* const corpus = std::getenv("UV_CORPUS");
    if (corpus == nullptr || *corpus == '\0')
        return {};
    std::vector<std::string> paths;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(std::filesystem::path(corpus) / folder))
        if (entry.is_regular_file() && !entry.path().filename().string().starts_with("LICENSE"))
            paths.push_back(entry.path().string());
    EXPECT_FALSE(paths.empty());
    std::ranges::sort(paths);
    return paths;
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

std::vector<std::string> SampleTexts(const char* language)
{
    std::vector<std::string> texts;
    for (const std::string& path : SamplePaths(language))
        texts.push_back(ReadFile(path));
    return texts;
}
